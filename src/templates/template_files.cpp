#include "templates/template_files.h"

#include "documents/files/file_load.h"
#include "documents/files/outside_change.h"
#include "documents/files/text_files.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/text/rtf/rtf.h"
#include "platform/dos_devices.h"
#include "platform/dos_path.h"
#include "platform/utf16.h"
#include "platform/windows1252.h"
#include "templates/shipped_templates.h"
#include "templates/template_edit.h"
#include "templates/template_journal.h"

#include <algorithm>
#include <vector>

namespace tarvex {

namespace {

constexpr const char* filter = "Templates (*.rtf)|*.rtf|Joystick files |*.f22;*.b50;*.adv|"
                               "Macro files |*.m22;*.m50;*.mdf|Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|"
                               "All files (*.*)|*.*";

constexpr std::string_view forbiddenInNames = "\\/:*?\"<>|";

/// On the machines that the file may go to later, too.
bool canBeFileName(const std::string& name)
{
    const auto forbidden = [](char letter) {
        return static_cast<unsigned char>(letter) < ' ' || forbiddenInNames.find(letter) != std::string_view::npos;
    };
    return std::ranges::none_of(name, forbidden) && !name.ends_with('.') && !name.ends_with(' ') && !isDosDevice(name);
}

void status(TemplateForm& window, const std::string& text) { window.editor.status(text); }

void sayOpened(TemplateForm& window, const std::string& name)
{
    const std::string& remark = window.OpeningRemark;
    status(window, name + " was opened successfully" + (remark.empty() ? "" : ". " + remark));
}

void nameFile(TemplateForm& window, const std::string& fullName, const std::string& name)
{
    window.TemplateFullName = fullName;
    window.TemplatePath = directoryOf(fullName);
    window.TemplateName = name;
    window.Text1.Text = name;
}

std::string bytesFor(const TemplateForm& window, const std::string& path)
{
    return lastThree(path) == "rtf" ? writeRtf(window.TemplateText.TextRTF()) : window.TemplateText.Text();
}

/// A name that was typed may be that of another template, and another program may have written to the window's own:
/// nobody was asked. Returns where the file is kept; empty: nothing would be lost.
std::string keepReplaced(TemplateForm& window, const std::string& path, const std::string& bytes)
{
    std::vector<FileSum> harmless{sumOf(bytes)};
    const bool isOwn = lowerUtf8(path) == lowerUtf8(window.TemplateFullName);
    if (isOwn && window.Journal.File) harmless.push_back(*window.Journal.File);
    if (holdsSomethingElse(window.editor, path, harmless)) return keepOutsideVersion(window.editor, path);
    keepWhatTextLacks(window.editor, path);
    return {};
}

enum class Replacing { Unasked, Agreed };

/// Writes the text; a failure leaves the old file and is reported.
void save(TemplateForm& window, const std::string& path, const std::string& name, Replacing replacing)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "TEMPLATE Command1_Click");
    const std::string bytes = bytesFor(window, path);
    std::string kept;
    const bool written = step([&] {
        if (replacing == Replacing::Agreed)
            keepWhatTextLacks(editor, path);
        else
            kept = keepReplaced(window, path, bytes);
        editor.platform.files.write(path, bytes);
    });
    if (!written) {
        editor.platform.dialogues.show({.title = "Ooops!",
                                        .text = name + " wasn't saved. I was trying to save it with this path: " +
                                                path + ", and the error message was: " + step.whyNot() + ".",
                                        .icon = BoxIcon::Exclamation});
        return;
    }
    nameFile(window, path, name);
    noteTextSettled(editor, journalled(window), sumOf(bytes));
    window.TemplateChanged = 0;
    status(window, name + " was saved successfully" + (kept.empty() ? "" : ". What was there before is in " + kept));
}

void saveUnderItsName(TemplateForm& window)
{
    const std::string name = window.Text1.Text;
    if (name.empty() || name == TemplateForm::untitled) return mnuFileSaveAs_Click(window);
    if (!canBeFileName(name)) {
        window.editor.platform.dialogues.show(
            {.title = "Ooops!", .text = "No file can have the name " + name, .icon = BoxIcon::Exclamation});
        return;
    }
    save(window, window.TemplatePath + name, name, Replacing::Unasked);
}

void openByDialogue(TemplateForm& window)
{
    Editor& editor = window.editor;
    if (!mayGiveUpText(window, "before opening another file",
                       " for some reason. I won't proceed in opening up another file"))
        return;
    changeToFolderOf(editor.shared.currentDirectory, window.TemplatePath, Steps());
    const auto chosen = editor.platform.dialogues.openFile(
        {.title = "", .filter = filter, .directory = window.TemplatePath, .defaultExtension = "rtf"});
    if (!chosen) return;
    const std::string name = fileNameOf(*chosen);
    if (loadTemplate(window, lowerUtf8(*chosen), name, "TEMPLATE Command1_Click")) sayOpened(window, name);
}

/// Where the loaders' configuration may be: in the folder that is set, above it or beside the loader.
std::vector<std::string> configurationFolders(const Settings& settings)
{
    const auto withoutEnd = [](std::string folder) {
        while (folder.ends_with('\\')) folder.pop_back();
        return folder;
    };
    const std::string set = withoutEnd(settings.ProgramFilesPath.whole());
    return {set, withoutEnd(directoryOf(set)), withoutEnd(directoryOf(settings.B50LoadPath.whole()))};
}

} // namespace

bool mayGiveUpText(TemplateForm& window, const std::string& purpose, const std::string& refusal)
{
    if (window.TemplateChanged != 1) return true;
    Dialogues& dialogues = window.editor.platform.dialogues;
    const std::string name = window.TemplateName;
    const Answer answer =
        dialogues.show({.title = " Save " + name + " now?",
                        .text = name + " has changed and isn't saved. Do you want to save it " + purpose + "?",
                        .icon = BoxIcon::Question,
                        .buttons = BoxButtons::YesNoCancel});
    if (answer != Answer::Yes) return answer == Answer::No;
    Command1_Click(window, 1);
    if (window.TemplateChanged != 1) return true;
    dialogues.show({.title = "Ooops!", .text = name + " wasn't saved" + refusal, .icon = BoxIcon::Exclamation});
    return false;
}

bool loadTemplate(TemplateForm& window, const std::string& path, const std::string& name, std::string_view tag,
                  bool plain)
{
    const auto bytes = readForOpening(window.editor, path, name, tag);
    if (!bytes) return false;
    Pane& pane = window.TemplateText;
    writeWithoutEdit(window, [&] {
        if (!plain && looksLikeRtf(*bytes))
            pane.setTextRTF(readRtf(*bytes, pane.formats()));
        else
            pane.setText(textOfFile(*bytes));
    });
    window.OpeningRemark = utf16Remark(name, *bytes);
    nameFile(window, path, name);
    refreshLayout(window);
    beginHistory(window);
    noteTextSettled(window.editor, journalled(window), sumOf(*bytes));
    window.TemplateChanged = 0;
    return true;
}

void Command1_Click(TemplateForm& window, std::size_t Index)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE Command1_Click");
    step([&] {
        if (Index == 0) return openByDialogue(window);
        if (Index == 1) return saveUnderItsName(window);
        if (!mayGiveUpText(window, "before creating a new file",
                           " for some reason. I won't proceed in creating a new file"))
            return;
        beginNewTemplate(window);
        status(window, "New file created");
    });
}

void mnuFileSaveAs_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuFileSaveAs_Click");
    step([&] {
        const auto chosen = window.editor.platform.dialogues.saveFile({.title = "",
                                                                       .filter = filter,
                                                                       .directory = window.TemplatePath,
                                                                       .suggestedName = window.Text1.Text,
                                                                       .defaultExtension = "rtf"});
        if (chosen) save(window, lowerUtf8(*chosen), fileNameOf(lowerUtf8(*chosen)), Replacing::Agreed);
    });
}

void Command2_Click(TemplateForm& window)
{
    constexpr std::string_view tag = "TEMPLATE Command2_Click";
    const Steps step(window.editor.shared.errors, tag);
    step([&] {
        if (!mayGiveUpText(window, "before opening another file",
                           " for some reason. I won't proceed in opening up another file"))
            return;
        const std::string path = window.editor.shared.settings.TextFilePath.whole();
        const std::string name = fileNameOf(path);
        if (loadTemplate(window, path, name, tag)) sayOpened(window, name);
    });
}

void mnuFileLoadDefault_Click(TemplateForm& window)
{
    if (window.Command2.Enabled) return Command2_Click(window);
    window.editor.platform.dialogues.show(
        {.title = "Have a beer instead",
         .text = "You don't have a default template to open. You can set one here or in Preferences.",
         .icon = BoxIcon::Information});
}

void mnuFileSetAsDefault_Click(TemplateForm& window)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "TEMPLATE mnuFileSetAsDefault_Click");
    step([&] {
        Command1_Click(window, 1);
        if (window.TemplateFullName.empty()) return; // neither saved now nor before
        editor.shared.settings.TextFilePath = window.TemplateFullName;
        editor.shared.store.SaveOptions();
        showDefaultTemplate(window);
    });
}

void showDefaultTemplate(TemplateForm& window)
{
    const Editor& editor = window.editor;
    const std::string path = editor.shared.settings.TextFilePath.whole();
    window.Command2.Enabled = !path.empty() && editor.platform.files.fileExists(path);
    window.Command2.ToolTipText =
        window.Command2.Enabled ? "Open " + path : "Open default template/text file (see Preferences)";
}

void mnuEditTmCFG_Click(TemplateForm& window)
{
    Editor& editor = window.editor;
    constexpr std::string_view tag = "TEMPLATE mnuEditTmCFG_Click";
    const Steps step(editor.shared.errors, tag);
    step([&] {
        const std::vector<std::string> folders = configurationFolders(editor.shared.settings);
        for (const std::string& folder : folders) {
            const std::string path = folder + "\\tm.cfg";
            if (folder.empty() || !editor.platform.files.fileExists(path)) continue;
            if (!mayGiveUpText(window, "before opening another file",
                               " for some reason. I won't proceed in opening up another file"))
                return;
            changeToFolderOf(editor.shared.currentDirectory, path, Steps());
            loadTemplate(window, path, "Tm.cfg", tag, true);
            return;
        }
        editor.platform.dialogues.show(
            {.title = "Couldn't locate Tm.cfg",
             .text = "Hmmm...I couldn't find your Tm.cfg file - I was looking for it here: " + folders.front(),
             .icon = BoxIcon::Exclamation});
    });
}

void FindDLDELAY(TemplateForm& window)
{
    const Steps step;
    Pane& pane = window.TemplateText;
    step([&] { pane.Find("DLDELAY", 0, static_cast<std::int64_t>(pane.TextLength())); });
}

void Text1_LostFocus(TemplateForm& window)
{
    const std::string name = window.Text1.Text;
    if (name.empty())
        window.Text1.Text = TemplateForm::untitled;
    else if (!name.ends_with(".rtf"))
        window.Text1.Text = name + ".rtf";
}

void beginNewTemplate(TemplateForm& window)
{
    writeWithoutEdit(window, [&] { window.TemplateText.setText(""); });
    window.TemplateFullName.clear();
    window.TemplateName = TemplateForm::untitled;
    window.Text1.Text = TemplateForm::untitled;
    window.TemplateChanged = 0;
    refreshLayout(window);
    beginHistory(window);
    noteTextSettled(window.editor, journalled(window), std::nullopt);
}

} // namespace tarvex
