#pragma once

#include "desktop/tool_form_window.h"
#include "testers/analyser.h"

namespace tarvex {

class FieldView;

/// What the windows of both analysers share: the menus above, the numbers below, the clock.
class AnalyserWindow : public ToolFormWindow {
    Q_OBJECT
public:
    QSize sizeHint() const override;

protected:
    AnalyserWindow(Analyser& analyser, QWidget* parent);

    /// Puts `middle` between menus and numbers; its fields are painted after each tick. Called once, at the end of the
    /// derived window's constructor.
    void fill(const std::vector<MenuEntry>& menus, QWidget* middle, std::vector<FieldView*> fields);
    FieldView* field() const { return m_fields.front(); }

private:
    void flush();
    void makeRoomForNumbers();
    int heightOfNumbers() const;

    Analyser& m_analyser;
    QWidget* m_numbers = nullptr;
    int m_numbersRoom = 0;            ///< height of the numbers in this window, with the space above them
    std::vector<FieldView*> m_fields; ///< the first one is that of the stick
};

} // namespace tarvex
