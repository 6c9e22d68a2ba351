#include "shell/frame/mum_window.h"

#include "shell/hardware/hardware_profile.h"
#include "shell/large_settings.h"
#include "shell/toolbar_buttons.h"

#include <algorithm>

namespace tarvex {

namespace {

std::string programPath(const MumContext& context, const std::string& name)
{
    return context.platform.programDirectory + "\\" + name;
}

void placeFrame(const MumContext& context)
{
    const Settings& settings = context.shared.settings;
    Form& form = context.mum.form;
    form.Left = settings.MumLeftAtStartup;
    form.Top = settings.MumTopAtStartup;
    form.Width = settings.MumWidthAtStartup;
    form.Height = settings.MumHeightAtStartup;
    form.State = settings.MumWindowstate != 0 ? WindowState::Maximised : WindowState::Normal;
}

/// A directory that can't be made is noticed when something is to be written into it, and not before.
void ensureDirectory(FileSystem& files, const std::string& path)
{
    const Steps step;
    if (!files.directoryExists(path)) step([&] { files.createDirectory(path); });
}

void hideSeparators(ToolBar& bar)
{
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.hidesWithSeparators) bar.Buttons(button.number).Visible = false;
    }
}

} // namespace

bool MDIForm_Load(const MumContext& context)
{
    Platform& platform = context.platform;
    Shared& shared = context.shared;
    Mum& mum = context.mum;
    Operations& operations = context.operations;
    Settings& settings = shared.settings;
    const Steps step(shared.errors, "MUM MDIForm_Load");

    if (platform.desktop.anotherInstanceRuns()) {
        platform.dialogues.show({.title = "Exiting now ...",
                                 .text = "Sorry, You can only have one instance of Tarvex running",
                                 .icon = BoxIcon::Information});
        return false;
    }
    shared.IniFilePath = shared.store.pathOf(IniFile::Tarvex);
    GetMumPosition(context);
    placeFrame(context);

    shared.BackupDirectory = programPath(context, "Backup\\");
    ensureDirectory(platform.files, programPath(context, "Backup"));
    shared.RtfDirectory = programPath(context, "Rtf\\");
    ensureDirectory(platform.files, programPath(context, "Rtf"));

    shared.store.GetOptions();
    if (settings.ImageFilePath.empty()) settings.ImageFilePath = programPath(context, "AboutTarvy.bmp");
    if (settings.TextFilePath.empty()) settings.TextFilePath = programPath(context, "readme.txt");
    shared.store.SaveOptions();

    if (settings.HideSeparators == 1) step([&] { hideSeparators(mum.Toolbar1); });
    if (settings.ProgramFilesPath.empty()) AutoDetect(platform, shared);
    shared.CommandLineFile = platform.commandLine;

    step([&] { operations.UpdateTooltips(); });
    step([&] { operations.ShowExtraButtons(); });
    mum.form.Visible = true;
    mum.Toolbar1.Wrappable = settings.CanWrapToolbar == 1;
    if (settings.FlatToolbar == 1) mum.Toolbar1.Flat = true;
    if (settings.GradientEffect == 1) step([&] { operations.PaintGradient(); });

    step([&] { reportLargeSettings(platform); });
    step([&] { operations.ShowEditor(); });
    if (settings.ShowTips == 1) step([&] { platform.dialogues.showModal("frmTip"); });
    return true;
}

void MDIForm_Unload(const MumContext& context)
{
    const Steps step;
    step([&] { SaveMumPosition(context); });
    step([&] { context.operations.ReleaseGradient(); });
    for (const char* form : {"ColourSelector", "KeyTestForm"}) step([&] { context.operations.UnloadForm(form); });
}

void GetMumPosition(const MumContext& context)
{
    context.shared.store.read(Access::GetMumPosition, "MUM GetMumPosition");
}

void SaveMumPosition(const MumContext& context)
{
    const Form& form = context.mum.form;
    if (form.State == WindowState::Minimised) return;
    Settings& settings = context.shared.settings;
    settings.MumTopAtStartup = std::max(form.Top.get(), 0.0F);
    settings.MumLeftAtStartup = std::max(form.Left.get(), 0.0F);
    settings.MumWidthAtStartup = std::min(form.Width.get(), context.platform.desktop.screenWidth());
    settings.MumHeightAtStartup = std::min(form.Height.get(), context.platform.desktop.screenHeight());
    settings.MumWindowstate = static_cast<std::int16_t>(form.State.get());
    context.shared.store.write(Access::SaveMumPosition, "MUM SaveMumPosition");
}

void MDIForm_Resize(const MumContext& context)
{
    const Steps step;
    ToolWindows& windows = context.mum.toolWindows;
    if (context.mum.form.State != WindowState::Minimised) {
        step([&] { windows.restoreAll(); });
    } else if (context.shared.settings.MinimiseAll == 1) {
        step([&] { windows.minimiseAll(); });
    }
}

void ReleaseGradientInEmergency(const MumContext& context)
{
    const Steps step;
    step([&] { context.operations.ReleaseGradient(); });
}

bool mnuFileExit_Click(const MumContext& context)
{
    bool cancel = false;
    context.operations.QueryUnloadEditor(cancel);
    if (cancel) return false;
    context.operations.UnloadEditor();
    MDIForm_Unload(context);
    context.mum.form.Visible = false;
    context.platform.desktop.quit();
    return true;
}

bool mnuMumFileExit_Click(const MumContext& context)
{
    context.operations.ReleaseGradient();
    return mnuFileExit_Click(context);
}

} // namespace tarvex
