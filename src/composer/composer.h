#pragma once

#include "composer/insert_options.h"

namespace tarvex {

/// Gives the window's controls their handlers.
void wireComposer(InsertOptions& window);
/// Gives the commands of the menu theirs.
void offerComposer(InsertOptions& window);

void Form_Load(InsertOptions& window);
void Form_Activate(InsertOptions& window);
void Form_Unload(InsertOptions& window);
bool Form_KeyDown(InsertOptions& window, int key, int shift);

void PositionComposer(InsertOptions& window);
/// Read and write the Composer's own settings; GetSpaces shows them.
void GetSpaces(InsertOptions& window);
void SaveSpaces(InsertOptions& window);
void UpdateTooltips(InsertOptions& window);

void Check1_Click(InsertOptions& window);
void CheckMultiAddCR_Click(InsertOptions& window, int Index);
void Command5_Click(InsertOptions& window, int Index);
void Command6_Click(InsertOptions& window);
void Command14_Click(InsertOptions& window);

// For wizards and menus: the window opens with a page of SSTab1 in front.
void showComposerPage(InsertOptions& window, int page);
/// The same with a value in the field of RATE, which has the keyboard.
void showComposerRate(InsertOptions& window, const std::string& value);
/// The same with the list of templates.
void showComposerTemplates(InsertOptions& window);

} // namespace tarvex
