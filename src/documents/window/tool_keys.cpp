#include "documents/window/tool_keys.h"

#include "platform/input.h"
#include "platform/key_codes.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr int functionKey(int number) { return keyCode::f1 + number - 1; }

constexpr ToolKey plainKeys[] = {
    {functionKey(2), &Menus::mnuShowInsertWindow}, {functionKey(3), &Menus::mnuComposerPlugin},
    {functionKey(5), &Menus::mnuInsertHeading},    {functionKey(6), &Menus::mnuInsertRemStatement},
    {functionKey(7), &Menus::mnuViewIdentify},     {functionKey(8), &Menus::mnuFileOpen},
    {functionKey(9), &Menus::mnuPreferencesEdit},  {functionKey(11), &Menus::mnuAppsJoyAnalyser},
    {functionKey(12), &Menus::mnuSendToJoystick},
};

constexpr ToolKey ctrlKeys[] = {
    {'Z', &Menus::mnuEditUndo},
    {'Y', &Menus::mnuEditRedo},
    {'X', &Menus::mnuEditCut},
    {'C', &Menus::mnuEditCopy},
    {'V', &Menus::mnuEditPaste},
    {'A', &Menus::mnuEditSelectAll},
    {'F', &Menus::mnuEditFind},
    {'G', &Menus::mnuEditGoto},
    {'R', &Menus::mnuEditReplace},
    {'N', &Menus::mnuFileNewJoystick},
    {'O', &Menus::mnuFileJoystickLoad},
    {'S', &Menus::mnuFileSave},
    {'P', &Menus::mnuFilePrintJoystick},
    {'U', &Menus::mnuEditUpdateMacros},
    {'H', &Menus::mnuViewReformat},
    {'B', &Menus::mnuViewApplyColourBothFiles},
    {'T', &Menus::mnuViewApplyColourBothFiles},
    {'K', &Menus::mnuSendToKeyTest},
    {'L', &Menus::mnuViewHighlightLine},
    {functionKey(8), &Menus::mnuFileSaveBoth},
};

MenuItem* commandOf(Menus& menus, std::span<const ToolKey> keys, int key)
{
    const auto row = std::ranges::find(keys, key, &ToolKey::keyCode);
    return row == keys.end() ? nullptr : &(menus.*row->command);
}

bool forwardCtrlKey(Menus& menus, int key)
{
    const MenuItem* command = commandOf(menus, ctrlKeys, key);
    if (command == nullptr || !command->Enabled || !command->handler) return false;
    command->Click();
    return true;
}

} // namespace

std::span<const ToolKey> plainToolKeys() { return plainKeys; }

std::span<const ToolKey> ctrlToolKeys() { return ctrlKeys; }

bool forwardKey(Editor& editor, Form& form, int key, int shift)
{
    if (shift == shiftKey::ctrl) return forwardCtrlKey(editor.menus, key);
    if (key == keyCode::f4) {
        form.State = WindowState::Minimised;
        focusEditor(editor);
    } else if (const MenuItem* command = commandOf(editor.menus, plainKeys, key)) {
        command->Click();
    }
    return false;
}

void focusEditor(Editor& editor)
{
    editor.mum.form.frontWanted();
    editor.selected().pane.SetFocus();
}

} // namespace tarvex
