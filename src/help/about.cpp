#include "help/about.h"

#include "platform/dos_path.h"
#include "platform/runner_missing.h"
#include "shell/errors.h"

namespace tarvex {

namespace {

constexpr const char* toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* toolsFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

/// Path of the system information tool as the registry has it; empty: it isn't there.
std::string sysInfoPath(HelpSystem* system)
{
    std::string path;
    if (GetKeyValue(system, toolKey, "PATH", path)) return path;
    if (GetKeyValue(system, toolsFolderKey, "MSINFO", path)) return path + "\\MSINFO32.EXE";
    return {};
}

} // namespace

AboutWindow::AboutWindow(Platform& thePlatform) : platform(thePlatform)
{
    Form.Caption = "About Tarvex";
    lblTitle.Caption = "Tarvex";
    lblVersion.Caption = "Version " TARVEX_VERSION;
    lblDescription.Caption = "A programming environment for Thrustmaster game controllers";
    cmdSysInfo.Caption = "&System info...";
    cmdOK.Caption = "OK";
    cmdSysInfo.handler = [this] { StartSysInfo(*this); };
    cmdOK.handler = [this] { Form.Visible = false; };
    m_shown = Form.Visible.changed.connect([this] {
        if (Form.Visible) ABOUT_Form_Load(*this);
    });
}

void ABOUT_Form_Load(AboutWindow& window)
{
    const Steps step;
    window.Picture.clear();
    step([&] { window.Picture = window.platform.files.read(window.platform.programDirectory + "\\AboutTarvy.bmp"); });
}

void StartSysInfo(AboutWindow& window)
{
    const Platform& platform = window.platform;
    const std::string path = sysInfoPath(window.system);
    const Steps step;
    bool started = false;
    step([&] {
        if (path.empty() || !platform.files.fileExists(path)) return;
        try {
            platform.processes.start({"", path}, windowStyle::normal, directoryOf(path));
        } catch (const RunnerMissing&) { // a box has said so
        }
        started = true;
    });
    if (!started) platform.dialogues.show({.title = "", .text = "System Information Is Unavailable At This Time"});
}

bool GetKeyValue(HelpSystem* system, const std::string& key, const std::string& name, std::string& value)
{
    if (system == nullptr) return false;
    const auto found = system->registryText(key, name);
    if (found) value = *found;
    return found.has_value();
}

} // namespace tarvex
