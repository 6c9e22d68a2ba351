#pragma once

#include "desktop/bind.h"

#include <QDialog>

namespace tarvex {

/// The window of a form: caption, place, visibility and keep-on-top follow the form's state, and what the user does
/// with its frame goes there. A tool window derives from it and fills in its widgets.
class FormWindow : public QDialog {
    Q_OBJECT
public:
    /// The form outlives the window; `name` is the form's name in the program, for tests and screen readers' tools.
    FormWindow(Form& form, const QString& name, QWidget* parent);

    /// Shows or hides the window as the form's state says. Called by makeWhenShown once the widgets are there.
    void refresh();
    /// Shows the form and returns once its state says that it is hidden again.
    void showModally();
    /// Esc and the frame's close button: the form's Close, else hidden.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

    Bindings m_bindings; ///< let go before the widgets

private:
    void showState();
    void keepOnTop(bool on);
    void place();
    void reportPlace();

    Form& m_form;
    bool m_modal = false;
};

/// Makes the form's window when it is first to be seen, so that windows that nobody opens cost nothing at start.
/// `make` returns a new FormWindow, which belongs to its parent.
template <typename Make> void makeWhenShown(Form& form, Bindings& bindings, Make make)
{
    bindings.follow(form.Visible, [&form, make, made = false]() mutable {
        if (!form.Visible || made) return;
        made = true;
        make()->refresh();
    });
}

} // namespace tarvex
