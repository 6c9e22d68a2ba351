#pragma once

#include "templates/template_form.h"

#include <concepts>
#include <utility>

namespace tarvex {

// The text of the Template Editor: undo, clipboard, colours, layout.

/// What `write` does to the text does not count as an edit by the user.
template <std::invocable Write> void writeWithoutEdit(TemplateForm& window, Write&& write)
{
    struct Restored { // also when the write fails: edits that don't count would be lost
        std::int16_t& flag;
        std::int16_t before;
        ~Restored() { flag = before; }
    };
    const Restored loading{window.IsLoading, std::exchange(window.IsLoading, std::int16_t{1})};
    write();
}

void TemplateText_Change(TemplateForm& window);
/// A character key is about to change the text; `key` as in Pane::KeyPress.
void TemplateText_KeyPress(TemplateForm& window, int key);
/// The user is about to change it by something else.
void templateEditComing(TemplateForm& window);
/// The right button, or the key of the pop-up menu.
void popUpTemplateMenu(TemplateForm& window, bool atCaret);

/// The present text is where undo ends.
void beginHistory(TemplateForm& window);
void mnuUndo_Click(TemplateForm& window);
void mnuRedo_Click(TemplateForm& window);
void updateEditMenu(TemplateForm& window);

void mnuCut_Click(TemplateForm& window);
void mnuCopy_Click(TemplateForm& window);
void mnuPaste_Click(TemplateForm& window);
void mnuSelectAll_Click(TemplateForm& window);

/// Colours the whole text by the language's rules.
void ColourTemplateText(TemplateForm& window);
/// The selection becomes black.
void mnuTextToBlack_Click(TemplateForm& window);
/// The selection, or what is typed next, takes a colour; that is no change of the file.
void GetCustomColour(TemplateForm& window, Colour colour);
/// ColourLabel1 shows the colour at the caret.
void UpdateLabelColours(TemplateForm& window);

/// Font and background of the settings.
void DoTheFonts(TemplateForm& window);
/// Font and indent of the whole text; its colours stay.
void refreshLayout(TemplateForm& window);
void mnuViewrefreshLayout_Click(TemplateForm& window);
/// The same after font or background of the settings were changed elsewhere.
void followTextSettings(TemplateForm& window);
/// The indent alone.
void mnuRefreshIndent_Click(TemplateForm& window);

} // namespace tarvex
