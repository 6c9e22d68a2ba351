#pragma once

#include "desktop/tool_form_window.h"
#include "documents/find/find_and_replace.h"
#include "documents/find/find_text.h"

class QGridLayout;
class QPushButton;
class QTabWidget;

namespace tarvex {

/// The window of FindAndReplace: a page for finding, one for replacing and one for going to a line.
class FindAndReplaceView : public ToolFormWindow {
    Q_OBJECT
public:
    FindAndReplaceView(FindAndReplace& window, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moveBesideText();
    QWidget* findTabPage();
    QWidget* replaceTabPage();
    QWidget* lineTabPage();
    void addText(QGridLayout& grid, int row, const char* label, ComboBox& state, const char* name);
    QWidget* fileChoice(const FindPage& page, const char* joystickName, const char* macroName);
    QWidget* options(const FindPage& page, const char* caseName, const char* wordName);
    QPushButton* button(Button& state, const char* name, char accessKey);
    QWidget* checkBox(CheckBox& state, const char* name, char accessKey);
    void showAccessKey(Property<std::string>& caption, QAbstractButton& view, char key);
    void showDefaultButton(int tab);

    FindAndReplace& m_window;
    QTabWidget* m_tabs;
};

} // namespace tarvex
