#include "composer/insert_options.h"
#include "composer_view_case.h"
#include "desktop/composer/control_scene.h"

#include <QListView>
#include <QListWidget>

namespace tarvex {
namespace {

/// The pictures on the pages of the forms.
struct ComposerFormsTest : ComposerViewTest {
    ControlScene& sceneOn(int page)
    {
        showPage(page);
        auto* scene = get<QTabWidget>("SSTab1")->currentWidget()->findChild<ControlScene*>();
        EXPECT_NE(scene, nullptr);
        return *scene;
    }
    std::string fileOn(int page) { return std::string(sceneOn(page).picture()->file); }
    std::string controlOn(int page) { return sceneOn(page).controls().join(' ').toStdString(); }
};

TEST_F(ComposerFormsTest, TheFormsOfTheKnobsShowTheirKnob)
{
    EXPECT_EQ(controlOn(composerPage::range), "ROTARY(0)");
    EXPECT_EQ(controlOn(composerPage::antenna), "ROTARY(1)");
    EXPECT_EQ(fileOn(composerPage::antenna), "tqs");
}

TEST_F(ComposerFormsTest, TheFormsOfTheThrottleShowTheOneTheUserHas)
{
    use(0, 2, 0);
    EXPECT_EQ(fileOn(composerPage::throttle), "wcs");
    EXPECT_EQ(controlOn(composerPage::throttle), "ROTARY(9)");
    use(0, 1, 0);
    EXPECT_EQ(fileOn(composerPage::throttle), "tqs");
    EXPECT_EQ(controlOn(composerPage::throttle), "ROTARY(5)");
    t.settings().ComposerImages = 1; // both throttles
    composer.form.Activate();
    t.settings().ComposerImages = 0;
    use(0, 2, 0);
    EXPECT_EQ(fileOn(composerPage::throttle), "wcs");
}

TEST_F(ComposerFormsTest, TheFormsOfTheAxesShowTheAxisThatIsHeld)
{
    EXPECT_EQ(controlOn(composerPage::digitalAxes), "ROTARY(3)");
    click("ToggleButton1(1)");
    EXPECT_EQ(controlOn(composerPage::digitalAxes), "ROTARY(6)");
    click("ToggleButton1(2)");
    EXPECT_EQ(controlOn(composerPage::digitalAxes), "ROTARY(2)");
    use(2, 0, 1); // an older stick has a picture with rudders of its own
    EXPECT_EQ(fileOn(composerPage::digitalAxes), "older-stick");
    EXPECT_EQ(controlOn(composerPage::digitalAxes), "ROTARY(8)");
}

TEST_F(ComposerFormsTest, TheTypesOfMiceShowWhichButtonsTheyAreMadeOf)
{
    use(0, 1, 0);
    EXPECT_EQ(controlOn(composerPage::setUp), "BTN(11) BTN(32)"); // A1: T1 and T6
    get<QListWidget>("MouseList(0)")->setCurrentRow(2);
    EXPECT_EQ(controlOn(composerPage::setUp), "BTN(32)");
    get<QListWidget>("MouseList(0)")->setCurrentRow(4);
    EXPECT_EQ(controlOn(composerPage::setUp), "");
    use(0, 2, 0);
    get<QListWidget>("MouseList(0)")->setCurrentRow(3);
    EXPECT_EQ(fileOn(composerPage::setUp), "wcs");
    EXPECT_EQ(controlOn(composerPage::setUp), "BTN(18)"); // A4: T6
}

TEST_F(ComposerFormsTest, TheShownControlIsDrawnInFullAndTheOthersFaint)
{
    ControlScene& scene = sceneOn(composerPage::range);
    scene.resize(580, 480); // the drawing's own size
    const QImage knob = scene.grab().toImage();
    scene.showControls(PictureOf::Tqs, {"ROTARY(1)"});
    const QImage other = scene.grab().toImage();
    HardwareArt art(picture(PictureOf::Tqs));
    art.setLook({.ink = Qt::black, .hidden = {}, .faint = {}});
    const auto [shape, corner] = art.shape("ROTARY(0)", 1);
    const QPoint middle = corner + shape.rect().center() - QPoint(0, shape.height() / 4);
    EXPECT_NE(knob.pixel(middle), other.pixel(middle));
    EXPECT_EQ(qRed(knob.pixel(middle)), qRed(shape.pixel(middle - corner)));
}

TEST_F(ComposerFormsTest, APictureTakesNoRoomThatTheFieldsNeed)
{
    for (const int page : {composerPage::range, composerPage::antenna, composerPage::throttle}) {
        ControlScene& scene = sceneOn(page);
        EXPECT_EQ(scene.minimumSizeHint().height(), -1);
        EXPECT_GT(scene.height(), 150) << "page " << page;
    }
}

TEST_F(ComposerFormsTest, TheRowsOfTheMacrosStandApart)
{
    t.files.addFile("c:\\tm\\a.b50", "");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\nChaff = c\r\n");
    t.openBoth("c:\\tm\\a.b50");
    composer.form.Activate();
    events();
    const auto* list = get<QListView>("List1");
    QStyleOptionViewItem option;
    option.initFrom(list);
    const int box = list->style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, list);
    EXPECT_GE(list->visualRect(list->model()->index(0, 0)).height(), box + 3);
}

} // namespace
} // namespace tarvex
