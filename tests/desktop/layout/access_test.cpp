// Every window can be used with a screen reader, with the keyboard alone, and with weak eyes.

#include "../access_keys.h"
#include "access_faults.h"
#include "preferences/preferences.h"
#include "window_walk.h"

#include <QApplication>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- what the look at a window notices ------------------------------------------------------------------------------

struct AccessFaults : testing::Test {
    QWidget window;
    QFormLayout* rows = new QFormLayout(&window);

    std::set<std::string> faults()
    {
        window.show();
        return accessFaults(window);
    }
};

TEST_F(AccessFaults, AFieldWithALabelIsInOrder)
{
    rows->addRow("&Name", new QLineEdit);
    rows->addRow(new QPushButton("&Save"));
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, AControlWithoutANameIsOne)
{
    auto* field = new QLineEdit;
    field->setObjectName("Text1");
    rows->addRow(field);
    EXPECT_THAT(faults(), ElementsAre("QLineEdit Text1 has no name"));
    field->setAccessibleName("Name");
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, TwoOfTheSameNameInOneGroupAreOne)
{
    rows->addRow(new QPushButton("Browse"));
    auto* second = new QPushButton("Browse");
    rows->addRow(second);
    EXPECT_THAT(faults(), ElementsAre("QPushButton \"Browse\" is the second \"Browse\""));
    second->setAccessibleName("Browse for the program");
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, AControlThatTabPassesIsOneUnlessItIsDisabled)
{
    auto* button = new QPushButton("Save");
    button->setFocusPolicy(Qt::ClickFocus);
    rows->addRow(button);
    EXPECT_THAT(faults(), ElementsAre("Tab doesn't reach QPushButton \"Save\""));
    button->setEnabled(false);
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, AnAccessKeyOfTwoControlsIsOneUnlessOneIsHidden)
{
    auto* first = new QPushButton("&Save");
    rows->addRow(first);
    rows->addRow("&Source", new QLineEdit);
    EXPECT_THAT(faults(), ElementsAre("Alt+S stands for &Save | &Source"));
    first->hide();
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, ATextThatIsHardToSeeIsOne)
{
    auto* label = new QLabel("pale");
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(0x77, 0x77, 0x77));
    palette.setColor(QPalette::Window, Qt::white);
    label->setPalette(palette);
    rows->addRow(label);
    EXPECT_THAT(faults(), ElementsAre("QLabel \"pale\" has a contrast of 4.47"));
    palette.setColor(QPalette::WindowText, QColor(0x76, 0x76, 0x76));
    label->setPalette(palette);
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(AccessFaults, OfAMenuAreSharedKeysAndEntriesWithoutAName)
{
    QMenu menu;
    menu.addAction("&Save");
    menu.addSeparator();
    menu.addAction("Save &as")->setEnabled(false);
    EXPECT_THAT(accessFaults(menu), IsEmpty());
    menu.addAction("&Send");
    menu.addAction("")->setObjectName("mnuEmpty");
    EXPECT_THAT(accessFaults(menu), ElementsAre("Alt+S stands for &Save | &Send", "mnuEmpty has no name"));
}

/// Draws the same whatever has the keyboard.
struct Unmoved : QWidget {
    Unmoved()
    {
        setFocusPolicy(Qt::StrongFocus);
        setObjectName("unmoved");
        setMinimumSize(20, 20);
    }
};

TEST_F(AccessFaults, AControlThatLooksTheSameWithTheFocusIsOne)
{
    rows->addRow(new QPushButton("&Save"));
    rows->addRow("&Name", new QLineEdit);
    window.show();
    EXPECT_THAT(focusFaults(window), IsEmpty());
    auto* plain = new Unmoved;
    rows->addRow(plain);
    plain->show();
    EXPECT_THAT(focusFaults(window), ElementsAre("QWidget unmoved doesn't show the focus"));
}

TEST(Contrast, IsThatOfTheWebsGuidelines)
{
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

// ---- the walk -------------------------------------------------------------------------------------------------------

using Theme = Appearance::Theme;

/// Controls that Tab leaves out for a reason.
struct Exception {
    const char* fault; ///< how its line begins
    const char* reason;
};
constexpr Exception exceptions[] = {
    {"tarvex::MumWindow: Tab doesn't reach QPushButton Command1_",
     "the Insert menu has the same, and Tab is a character"},
    {"tarvex::SafeinView: Tab doesn't reach tarvex::KeyButton ", "Capture takes the keys of the keyboard itself"},
    {"tarvex::ComposerView: Tab doesn't reach tarvex::StatementBox ", "each control has it as its own description"},
    {"tarvex::KeyTestView: Tab doesn't reach ",
     "every key is shown, Tab and the arrows, too; the menu has the commands"},
};

bool isException(const std::string& fault)
{
    return std::ranges::any_of(exceptions, [&](const Exception& e) { return fault.starts_with(e.fault); });
}

/// Collects what the look at each window notices, a line each, with the command after which it was seen first.
class AccessWalk : public WindowWalk {
public:
    using Look = std::set<std::string> (*)(QWidget& window);
    AccessWalk(Theme theme, Look atWindow) : m_look(atWindow)
    {
        m_desktop.appearance->choose(theme);
        Preferences& preferences = m_desktop.program->preferences;
        preferences.filesHome.Choices[FilesHome::newFolder].Caption = "In a &new folder"; // what their callers fill in
        IMPORT_Form_Load(preferences.importForm, {});
        QApplication::processEvents(); // widgets learn of another palette by an event
    }
    std::string report() const
    {
        std::string all;
        for (const auto& [fault, after] : m_faults) all += fault + ", after " + after + '\n';
        return all;
    }

private:
    void look(QWidget& window) override
    {
        if (qobject_cast<const QFileDialog*>(&window) != nullptr) return; // the toolkit's own
        const std::string name = className(window) + ": ";
        if (m_look == &focusFaults && !m_shown.insert(name + shownWidgets(window)).second) return; // that takes long
        for (const std::string& fault : m_look(window))
            if (!isException(name + fault)) m_faults.try_emplace(name + fault, command());
    }

    static std::string shownWidgets(const QWidget& window)
    {
        std::string all;
        for (const QWidget* widget : shownIn<QWidget>(window)) all += widget->objectName().toStdString() + ' ';
        return all;
    }

    Look m_look;
    std::set<std::string> m_shown; ///< windows with the same widgets, once
    std::map<std::string, std::string> m_faults;
};

class AllWindowsAccess : public testing::TestWithParam<Theme> {};

TEST_P(AllWindowsAccess, HaveNamesKeysAndContrast)
{
    AccessWalk walk(GetParam(), [](QWidget& window) { return accessFaults(window); });
    walk.run();
    EXPECT_EQ(walk.report(), "");
}

TEST_P(AllWindowsAccess, ShowWhatHasTheKeyboard)
{
    AccessWalk walk(GetParam(), focusFaults);
    walk.run();
    EXPECT_EQ(walk.report(), "");
}

INSTANTIATE_TEST_SUITE_P(InEachAppearance, AllWindowsAccess,
                         testing::Values(Theme::Light, Theme::Dark, Theme::HighContrast), [](const auto& theme) {
                             return theme.param == Theme::Light  ? "Light"
                                    : theme.param == Theme::Dark ? "Dark"
                                                                 : "HighContrast";
                         });

TEST(AllMenusAccess, HaveNamesAndKeysOfTheirOwn)
{
    DesktopProgram desktop;
    std::set<std::string> all;
    for (QMenu* menu : desktop.window->findChildren<QMenu*>()) {
        emit menu->aboutToShow();
        for (const std::string& fault : accessFaults(*menu)) all.insert(menu->title().toStdString() + ": " + fault);
    }
    EXPECT_THAT(all, IsEmpty());
}

} // namespace
} // namespace tarvex
