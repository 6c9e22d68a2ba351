#pragma once

#include "desktop/tool_form_window.h"
#include "safein/raw_form.h"

class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QPushButton;

namespace tarvex {

class KeyPadView;

/// The window of Safein.
class SafeinView : public ToolFormWindow {
    Q_OBJECT
public:
    SafeinView(RAWform& window, QWidget* parent);

protected:
    bool takesKey(const QKeyEvent& event) override;
    bool keepsKey(const QKeyEvent& event) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addMenuBar();
    QLayout* toggleRow();
    QLayout* fieldGrid();
    QLayout* slashRow();
    void addField(QGridLayout& grid, int row, const char* label, TextBox& state, const char* name, Button* append,
                  Button& insert, const char* insertName);
    void addRawReader(QGridLayout& grid, int row);
    QLineEdit* lineEdit(TextBox& state, const char* name);
    QPushButton* button(Button& state, const QString& name);
    QPushButton* toggle(ToggleLabel& state, const char* name);
    void showStatementColour(QLineEdit& field);

    RAWform& m_window;
    KeyPadView* m_pad;
    QLineEdit* m_rawToRead = nullptr;
};

} // namespace tarvex
