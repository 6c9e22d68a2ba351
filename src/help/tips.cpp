#include "help/tips.h"

#include "platform/windows1252.h"

namespace tarvex {

namespace {

constexpr std::size_t longestTip = 2000; ///< characters; a longer line is no tip, and would be taller than the screen

/// The lines of a text; CR LF, CR or LF ends one. What follows the last end is a line unless it is empty.
std::vector<std::string> linesOf(const std::string& bytes)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", start), bytes.size());
        lines.push_back(utf8FromWindows1252(bytes.substr(start, std::min(end - start, longestTip))));
        std::erase(lines.back(), '\0');
        const bool pair = bytes.compare(end, 2, "\r\n") == 0;
        start = end + (pair ? 2 : 1);
    }
    return lines;
}

} // namespace

TipWindow::TipWindow(Shared& theShared, Platform& thePlatform) : shared(theShared), platform(thePlatform)
{
    Form.Caption = "Tip of the day";
    chkLoadTipsAtStartup.Caption = "&Show tips at startup";
    cmdNextTip.Caption = "&Next tip";
    cmdOK.Caption = "OK";
    cmdNextTip.handler = [this] { cmdNextTip_Click(*this); };
    cmdOK.handler = [this] { cmdOK_Click(*this); };
    m_shown = Form.Visible.changed.connect([this] {
        if (Form.Visible) TIPS_Form_Load(*this);
    });
}

void TIPS_Form_Load(TipWindow& window)
{
    const Steps step(window.shared.errors, "TIPS Form_Load");
    step([&] { window.Form.TopMost = true; });
    step([&] { window.chkLoadTipsAtStartup.Value = window.shared.settings.ShowTips == 1; });
    window.tips.clear();
    window.CurrentTip = 0;
    window.lblTipText.Caption = "";
    LoadTips(window, window.platform.programDirectory + "\\Tips.txt");
    const auto count = static_cast<std::uint32_t>(window.tips.size());
    if (count == 0) return;
    const std::uint32_t chance = window.system != nullptr ? window.system->chance() : 0;
    window.CurrentTip = static_cast<int>(chance % count) + 1;
    DisplayCurrentTip(window);
}

bool LoadTips(TipWindow& window, const std::string& path)
{
    const Steps step(window.shared.errors, "TIPS LoadTips");
    bool loaded = false;
    step([&] {
        if (path.empty() || !window.platform.files.fileExists(path)) return;
        for (std::string& line : linesOf(window.platform.files.read(path))) window.tips.push_back(std::move(line));
        cmdNextTip_Click(window);
        loaded = true;
    });
    return loaded;
}

void DisplayCurrentTip(TipWindow& window)
{
    const Steps step(window.shared.errors, "TIPS DisplayCurrentTip");
    step([&] {
        if (!window.tips.empty())
            window.lblTipText.Caption = window.tips.at(static_cast<std::size_t>(window.CurrentTip) - 1);
    });
}

void cmdNextTip_Click(TipWindow& window)
{
    ++window.CurrentTip;
    if (window.CurrentTip > static_cast<int>(window.tips.size())) window.CurrentTip = 1;
    DisplayCurrentTip(window);
}

void cmdOK_Click(TipWindow& window)
{
    const Steps step(window.shared.errors, "TIPS cmdOK_Click");
    step([&] { window.shared.settings.ShowTips = window.chkLoadTipsAtStartup.Value ? 1 : 0; });
    step([&] { window.shared.store.write(Access::cmdOK_Click, "TIPS cmdOK_Click"); });
    step([&] { window.Form.Visible = false; });
}

} // namespace tarvex
