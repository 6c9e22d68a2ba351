#pragma once

#include "platform/help_system.h"
#include "platform/platform.h"

#include <string>

namespace tarvex {

/// The about box.
struct AboutWindow {
    explicit AboutWindow(Platform& thePlatform);
    AboutWindow(const AboutWindow&) = delete;
    AboutWindow& operator=(const AboutWindow&) = delete;

    Platform& platform;
    HelpSystem* system = nullptr; ///< knows the registry
    tarvex::Form Form;
    Label lblTitle;
    Label lblVersion;
    Label lblDescription;
    std::string Picture; ///< the picture file's bytes when the box comes up; empty: it can't be read
    Button cmdSysInfo;
    Button cmdOK;

private:
    Connection m_shown;
};

void ABOUT_Form_Load(AboutWindow& window);
/// Starts the system information tool of Windows, or says that there is none.
void StartSysInfo(AboutWindow& window);
/// A text of the registry. False: there is none, and `value` stays.
bool GetKeyValue(HelpSystem* system, const std::string& key, const std::string& name, std::string& value);

} // namespace tarvex
