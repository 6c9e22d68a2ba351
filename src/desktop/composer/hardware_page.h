#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

#include <QWidget>

#include <array>

class QTabWidget;

namespace tarvex {

class HardwareControl;
class HardwarePicture;
class StatementBox;

/// The first page of the Composer: the pictures of the controllers under their tabs, what the control at hand has in
/// the joystick file, slash modifiers, delays and remarks.
class HardwarePage : public QWidget {
    Q_OBJECT
public:
    /// `bindings` are destroyed before this.
    HardwarePage(InsertOptions& window, Bindings& bindings, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makePictures();
    QWidget* makeStatement();
    QLayout* makeSlashRow();
    QLayout* makeItemRow();
    QLayout* makeRemarkRow();
    void bindControls();
    void showControls();
    void showControl(std::string_view id);
    void showState(HardwareControl& view, std::string_view id);
    void click(const QString& id);
    void attend(const QString& id);
    void showAttended();
    QString hint() const;

    InsertOptions& m_window;
    Bindings& m_bindings;
    std::array<HardwarePicture*, 4> m_pictures{};
    StatementBox* m_statement = nullptr;
    QString m_attended; ///< id of the control that the mouse or the focus was on last
};

} // namespace tarvex
