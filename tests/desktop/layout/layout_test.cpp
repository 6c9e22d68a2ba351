// Every window that a command opens has its widgets in place: nothing on top of another, nothing outside, no text cut.
// A window of the future takes part by itself, or the test says that no command led to it.

#include "form_classes.h"
#include "layout_faults.h"
#include "window_walk.h"

#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tarvex {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

// ---- what the look at a window notices ------------------------------------------------------------------------------

struct Box : QWidget {
    QWidget* add(QRect place)
    {
        auto* child = new QWidget(this);
        child->setGeometry(place);
        return child;
    }
    std::set<std::string> faults()
    {
        resize(200, 100);
        show();
        return layoutFaults(*this);
    }
};

TEST(LayoutFaults, WidgetsSideBySideAreInOrder)
{
    Box box;
    box.add({0, 0, 50, 50});
    box.add({50, 0, 150, 50});
    EXPECT_THAT(box.faults(), IsEmpty());
}

TEST(LayoutFaults, AWidgetOnTopOfAnotherIsOne)
{
    Box box;
    box.add({0, 0, 50, 50})->setObjectName("low");
    box.add({49, 49, 50, 50})->setObjectName("high");
    EXPECT_THAT(box.faults(), testing::ElementsAre("QWidget low and QWidget high overlap"));
}

TEST(LayoutFaults, AWidgetOutsideItsParentIsOneAndAHiddenOneIsNot)
{
    Box box;
    box.add({151, 0, 50, 50})->setObjectName("far");
    box.add({300, 0, 50, 50})->hide();
    EXPECT_THAT(box.faults(), Contains(HasSubstr("QWidget far leaves")));
    EXPECT_EQ(box.faults().size(), 1U);
}

TEST(LayoutFaults, WidgetsWithMasksThatDoNotMeetAreNone)
{
    Box box;
    box.add({0, 0, 50, 50})->setMask(QRegion(0, 0, 20, 50));
    QWidget* beside = box.add({10, 0, 50, 50});
    beside->setMask(QRegion(20, 0, 30, 50));
    EXPECT_THAT(box.faults(), IsEmpty());
    beside->setMask(QRegion(0, 0, 30, 50));
    EXPECT_EQ(box.faults().size(), 1U);
}

TEST(LayoutFaults, AWidgetThatIsInNoLayoutIsOne)
{
    Box box;
    auto* row = new QHBoxLayout(&box);
    row->addWidget(new QLabel("in the layout"));
    auto* button = new QPushButton("nowhere", &box);
    button->show();
    EXPECT_THAT(box.faults(), testing::Not(IsEmpty()));
}

TEST(LayoutFaults, ATextWithoutRoomIsOne)
{
    Box box;
    auto* label = new QLabel("a text that is far too long", &box);
    label->setGeometry(0, 0, 40, 20);
    auto* button = new QPushButton("a text that is far too long", &box);
    button->setGeometry(0, 50, 40, 30);
    EXPECT_THAT(box.faults(), Contains(HasSubstr("QLabel \"a text that is far too long\" is clipped")));
    EXPECT_THAT(box.faults(), Contains(HasSubstr("QPushButton \"a text that is far too long\" is clipped")));
    label->setGeometry(0, 0, 200, 40);
    button->setGeometry(0, 50, 200, 40);
    EXPECT_THAT(box.faults(), IsEmpty());
}

TEST(LayoutFaults, APageIsLookedAtThroughItsScrollAreaAndMustNotScrollSideways)
{
    QScrollArea area;
    auto* page = new Box;
    page->add({0, 0, 50, 50})->setObjectName("low");
    page->add({49, 49, 50, 50})->setObjectName("high");
    page->resize(150, 400);
    area.setWidget(page);
    area.resize(200, 100);
    area.show();
    EXPECT_THAT(layoutFaults(area), testing::ElementsAre("QWidget low and QWidget high overlap"));
    page->resize(300, 400);
    EXPECT_THAT(layoutFaults(area), Contains(HasSubstr("scrolls sideways")));
}

// ---- the walk -------------------------------------------------------------------------------------------------------

/// Dialogues of the toolkit's own making.
bool isToolkits(const QWidget& window) { return qobject_cast<const QFileDialog*>(&window) != nullptr; }

/// Collects what the look at each window notices.
class LayoutWalk : public WindowWalk {
public:
    explicit LayoutWalk(Appearance::Theme theme) { m_desktop.appearance->choose(theme); }

    std::map<std::string, std::string> faults; ///< and the command after which each was seen first
    std::set<std::string> seen;                ///< classes of windows

private:
    void look(QWidget& window) override
    {
        const std::string name = className(window);
        seen.insert(name);
        if (isToolkits(window)) return;
        for (const std::string& fault : layoutFaults(window)) faults.try_emplace(name + ": " + fault, command());
    }
};

using Theme = Appearance::Theme;

struct Look {
    int points;
    Theme theme;
};

class AllWindows : public testing::TestWithParam<Look> {
protected:
    void SetUp() override
    {
        QFont font = m_font;
        font.setPointSize(GetParam().points);
        QApplication::setFont(font);
    }
    void TearDown() override { QApplication::setFont(m_font); }

private:
    const QFont m_font = QApplication::font();
};

TEST_P(AllWindows, OfEveryCommandHaveTheirWidgetsInPlace)
{
    LayoutWalk walk(GetParam().theme);
    walk.run();
    std::string all;
    for (const auto& [fault, command] : walk.faults) all += fault + ", after " + command + '\n';
    EXPECT_EQ(all, "");
    const std::set<std::string> forms = formClasses();
    EXPECT_GE(forms.size(), 4U) << "the sources were found";
    for (const std::string& form : forms) EXPECT_THAT(walk.seen, Contains(form)) << "no command led to it";
}

INSTANTIATE_TEST_SUITE_P(AtThreeSizesOfText, AllWindows,
                         testing::Values(Look{8, Theme::Light}, Look{11, Theme::Light}, Look{16, Theme::Light},
                                         Look{8, Theme::Dark}, Look{11, Theme::Dark}, Look{16, Theme::Dark},
                                         Look{11, Theme::HighContrast}),
                         [](const auto& look) {
                             const std::string theme = look.param.theme == Theme::Light  ? "Light"
                                                       : look.param.theme == Theme::Dark ? "Dark"
                                                                                         : "HighContrast";
                             return theme + std::to_string(look.param.points) + "Points";
                         });

} // namespace
} // namespace tarvex
