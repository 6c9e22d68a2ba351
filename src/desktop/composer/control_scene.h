#pragma once

#include "desktop/composer/hardware_art.h"

#include <QWidget>

#include <memory>

namespace tarvex {

/// A picture of a controller with some controls in full and all others faint: it shows what a form is about, and takes
/// neither clicks nor keys. It is drawn as large as it fits, or not at all where there is hardly any room.
class ControlScene : public QWidget {
    Q_OBJECT
public:
    explicit ControlScene(QWidget* parent = nullptr);

    /// `controls` are ids of the picture's controls; without any, all are faint.
    void showControls(PictureOf what, const QStringList& controls);
    const QStringList& controls() const { return m_controls; }
    const Picture* picture() const { return m_picture; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    HardwareArt::Look look() const;

    const Picture* m_picture = nullptr;
    QStringList m_controls;
    std::unique_ptr<HardwareArt> m_art; ///< read from its file when it is first painted
    QPixmap m_drawn;                    ///< for the look and size below
    HardwareArt::Look m_look;
};

} // namespace tarvex
