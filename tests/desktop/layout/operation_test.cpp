// Each control of each window is operated by mouse and by key, and what follows is compared with a list in
// tests/data/operation: what the window shows then, texts, boxes, files, settings. With TARVEX_UPDATE_TEXTS set the
// lists are written instead; read the difference before committing it.

#include "form_classes.h"
#include "operation_walk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

const QString listFolder = QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/operation/");

/// A window, the command, button or form that leads to it, and in how many tests its controls are operated.
struct Window {
    const char* name;
    const char* way;
    std::size_t parts = 1;
};
constexpr Window windows[] = {
    {"MumWindow", "", 2},
    {"FindAndReplaceView", "mnuEditFind"},
    {"ComposerView", "mnuShowInsertWindow", 6},
    {"SafeinView", "mnuInsertRAW", 4},
    {"TitleView", "Toolbar1_26"},
    {"HeadingView", "Toolbar1_27"},
    {"SingleTextView", "Toolbar1_28"},
    {"PreferencesView", "Toolbar1_38", 4},
    {"ViewImageView", "Toolbar1_39"},
    {"KeyTestView", "Toolbar1_40"},
    {"TemplateView", "Toolbar1_41", 2},
    {"HandbookView", "Toolbar1_47"},
    {"WizardView", "mnuhelpWizCreateJoyFile", 2},
    {"SpeedyView", "mnuWizSpeedy"},
    {"JoyPlotView", "mnuAppsJoyAnalyser"},
    {"TcaView", "mnuAppsJoyAnalyser", 2},
    {"EnterGameNameView", "mnuGamesAdd"},
    {"EnterFavouriteNameView", "mnuFavouritesAddCurrent"},
    {"InfoView", "mnuHowDoIArray(0)"},
    {"TipView", "mnuHelpTips"},
    {"AboutView", "mnuHelpAbout"},
    {"ColourSelectorView", "Picture1"},
    {"DifferencesView", "Differences"},
    {"FilesHomeView", "FilesHome"},
    {"ImportView", "Import"},
    {"SelectPictureView", "SelectPictureForm"},
};

struct Part {
    Window window;
    std::size_t number;

    std::string name() const { return window.name + (window.parts > 1 ? std::to_string(number + 1) : std::string()); }
};

void PrintTo(const Part& part, std::ostream* stream) { *stream << part.name(); }

std::vector<Part> allParts()
{
    std::vector<Part> parts;
    for (const Window& window : windows)
        for (std::size_t i = 0; i < window.parts; ++i) parts.push_back({window, i});
    return parts;
}

/// With a font whose widths are the same on every machine.
class Operation : public testing::TestWithParam<Part> {
protected:
    void SetUp() override
    {
        QFont font(QStringLiteral("Liberation Sans"), 9);
        font.setHintingPreference(QFont::PreferNoHinting);
        ASSERT_EQ(fromQt(QFontInfo(font).family()), "Liberation Sans") << "the package fonts-liberation has it";
        QApplication::setFont(font);
        QApplication::setCursorFlashTime(0);
    }
    void TearDown() override { QApplication::setFont(m_before); }

private:
    const QFont m_before = QApplication::font();
};

TEST_P(Operation, OfEachControlHasTheEffectsOfItsListAndTheScreenShowsThem)
{
    const Window& window = GetParam().window;
    OperationWalk walk(GetParam().number, window.parts, window.name == std::string("TcaView"));
    walk.operateWindow(window.way);
    EXPECT_EQ(walk.seen, std::string("tarvex::") + window.name) << "another window came up";
    EXPECT_EQ(fromQt(walk.notPainted.join(u'\n')), "") << "not on the screen";
    EXPECT_EQ(fromQt(walk.swallowing.join(u'\n')), "") << "keys don't get through to the window";
    const QByteArray list = (walk.list.join(u'\n') + u'\n').toUtf8();
    QFile file(listFolder + toQt(GetParam().name()) + QStringLiteral(".txt"));
    if (qEnvironmentVariableIsSet("TARVEX_UPDATE_TEXTS")) {
        ASSERT_TRUE(QDir().mkpath(listFolder));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(list);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "there is no list";
    EXPECT_EQ(list.toStdString(), file.readAll().toStdString());
}

INSTANTIATE_TEST_SUITE_P(Windows, Operation, testing::ValuesIn(allParts()),
                         [](const auto& part) { return part.param.name(); });

TEST(OperationLists, AreThereForEveryWindow)
{
    std::set<std::string> operated;
    for (const Window& window : windows) operated.insert(std::string("tarvex::") + window.name);
    const std::set<std::string> forms = formClasses();
    EXPECT_GE(forms.size(), 4U) << "the sources were found";
    for (const std::string& form : forms) EXPECT_THAT(operated, testing::Contains(form));
}

} // namespace
} // namespace tarvex
