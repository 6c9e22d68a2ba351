#pragma once

#include "desktop/composer/hardware_art.h"
#include "desktop/composer/hardware_control.h"

#include <QPixmap>
#include <QWidget>

#include <memory>
#include <vector>

namespace tarvex {

/// A picture of a controller whose controls can be clicked, focused and marked. It is drawn as large as it fits, in the
/// colours of the palette. Each control is a child of its own (`control`): hide, disable or check it, and give it a tip
/// or a description there. It decides nothing about what a control does.
class HardwarePicture : public QWidget {
    Q_OBJECT

public:
    explicit HardwarePicture(const Picture& picture, QWidget* parent = nullptr);

    const Picture& picture() const { return *m_picture; }
    /// Another picture. Its controls are new ones, shown, enabled and without marks.
    void setPicture(const Picture& picture);
    /// The control with this id, or null.
    HardwareControl* control(std::string_view id) const;
    /// In the order of the keyboard.
    const std::vector<HardwareControl*>& controls() const { return m_controls; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void clicked(const QString& control);
    /// The right button or the menu key; `place` is on the screen.
    void menuWanted(const QString& control, QPoint place);
    /// The control that the mouse or the focus has come to last; when that is left, the one under the mouse, else the
    /// focused one; empty when there is neither.
    void attended(const QString& control);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addControl(const PictureControl& entry);
    void attend(const HardwareControl& control, bool here);
    void focusNeighbour(const HardwareControl& from, int step);
    void invalidate();
    void place();
    void paintState(QPainter& painter, const HardwareControl& control);

    const Picture* m_picture = nullptr;
    std::unique_ptr<HardwareArt> m_art;
    std::vector<HardwareControl*> m_controls;
    QString m_attended;
    QPixmap m_whole;    ///< as last drawn; null when it is to be drawn anew
    qreal m_scale = 0;  ///< pixels of the device per unit of the drawing
    QPoint m_corner;    ///< of the drawing, in pixels of the device
    qreal m_placed = 0; ///< pixel ratio of the device for which the controls have their places; 0: none
};

} // namespace tarvex
