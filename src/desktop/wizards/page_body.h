#pragma once

#include "desktop/bind.h"
#include "wizards/macro_maker.h"
#include "wizards/wizard_pages.h"

#include <span>

class QFormLayout;
class QPushButton;
class QVBoxLayout;

namespace tarvex {

/// Makes the widgets of pages. What it is given outlives the widgets.
class PageMaker {
public:
    /// `maker` may be none for a window that makes no macros.
    PageMaker(Bindings& bindings, const Settings& settings, std::span<Button> buttons, MacroMaker* maker)
        : m_bindings(bindings), m_settings(settings), m_buttons(buttons), m_maker(maker)
    {
    }

    /// A page with its pieces below each other, in a frame that scrolls when there is too little room. Pieces that the
    /// window doesn't have are left out.
    QWidget* page(const WizardPage& page, bool withTitle);

private:
    void add(QVBoxLayout& column, const WizardBlock& block);
    QWidget* words(const std::string& text);
    QWidget* item(const std::string& text);
    QPushButton* button(int number);
    QWidget* macroBoxes();
    void addBox(QFormLayout& rows, const char* label, std::size_t index);
    QWidget* headings();

    Bindings& m_bindings;
    const Settings& m_settings;
    std::span<Button> m_buttons;
    MacroMaker* m_maker;
};

} // namespace tarvex
