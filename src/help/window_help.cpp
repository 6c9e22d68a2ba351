#include "help/window_help.h"

#include "shell/help_topics.h"

#include <algorithm>

namespace tarvex {

namespace {

struct WindowTopic {
    std::string_view name;
    int topic;
};

/// The key tester isn't among them: it shows F1 as it shows every key.
constexpr WindowTopic windowTopics[] = {
    {"ColourSelector", helpTopic::colourSelector},
    {"Differences", helpTopic::outsideChanges},
    {"EnterFavouritename", helpTopic::favourites},
    {"EnterGameName", helpTopic::games},
    {"FilesHome", helpTopic::firstPreferencesPage},
    {"Handbook", helpTopic::handbook},
    {"Heading", helpTopic::headings},
    {"Import", helpTopic::importing},
    {"InfoWindow", helpTopic::handbook},
    {"InsertOptions", helpTopic::composer},
    {"JoyPlot", helpTopic::joystickAnalyser},
    {"JoystickWiz", helpTopic::joystickWizard},
    {"MacroWizard", helpTopic::macroWizard},
    {"PrintPreview", helpTopic::printing},
    {"RAWform", helpTopic::safeinOverview},
    {"SelectPictureForm", helpTopic::imageViewer},
    {"SingleTextForm", helpTopic::remStatements},
    {"SlashWizard", helpTopic::slashWizard},
    {"Speedy", helpTopic::speedy},
    {"TCAform", helpTopic::controllerAnalyser},
    {"TemplateForm", helpTopic::templateEditor},
    {"Title", helpTopic::titles},
    {"ViewImage", helpTopic::imageViewer},
    {"frmAbout", helpTopic::handbook},
    {"frmTip", helpTopic::handbook},
};

} // namespace

int topicOfWindow(std::string_view name)
{
    const auto* row = std::ranges::find(windowTopics, name, &WindowTopic::name);
    return row == std::end(windowTopics) ? 0 : row->topic;
}

bool showWindowHelp(Help& help, std::string_view name)
{
    const int topic = topicOfWindow(name);
    if (topic != 0) HelpTopic(help.handbook, topic);
    return topic != 0;
}

} // namespace tarvex
