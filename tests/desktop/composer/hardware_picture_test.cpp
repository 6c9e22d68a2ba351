#include "desktop/composer/hardware_picture.h"

#include "desktop/composer/picture_case.h"
#include "desktop/text.h"
#include "desktop/theme.h"

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// A window with one picture; the mouse and the keys arrive as they do from the window system.
struct Shown {
    QWidget window;
    HardwarePicture* picture;
    std::vector<std::string> clicked;
    std::vector<std::string> menus;
    std::string attended = "nothing yet";

    explicit Shown(const Picture& what, QSize size = {580, 480}) : picture(new HardwarePicture(what, &window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(picture);
        QObject::connect(picture, &HardwarePicture::clicked,
                         [this](const QString& id) { clicked.push_back(fromQt(id)); });
        QObject::connect(picture, &HardwarePicture::menuWanted,
                         [this](const QString& id, QPoint) { menus.push_back(fromQt(id)); });
        QObject::connect(picture, &HardwarePicture::attended, [this](const QString& id) { attended = fromQt(id); });
        window.resize(size);
        window.show();
        QApplication::setActiveWindow(&window);
        settle();
    }
    explicit Shown(PictureOf what, QSize size = {580, 480}) : Shown(tarvex::picture(what), size) {}

    static void settle() { QApplication::processEvents(); }
    HardwareControl& control(std::string_view id) const { return *picture->control(id); }
    void click(QPoint at) { QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at); }
    void move(QPoint at)
    {
        QTest::mouseMove(window.windowHandle(), at);
        settle();
    }
    void key(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }
    std::string focused() const
    {
        const QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? fromQt(widget->objectName()) : "";
    }
    QImage image() { return picture->grab().toImage(); }
};

/// Where a control and its name are drawn when the picture has this size, by the drawing's file: not by the widget.
struct Drawn {
    QImage alone;
    QRect name;

    Drawn(const Picture& picture, std::string_view id, QSize size) : alone(size, QImage::Format_ARGB32_Premultiplied)
    {
        QSvgRenderer renderer(QStringLiteral(":/hardware/%1.svg").arg(toQt(picture.file)));
        const QSizeF drawing = renderer.viewBoxF().size();
        const qreal scale = std::min(size.width() / drawing.width(), size.height() / drawing.height());
        QTransform place;
        place.translate((size.width() - drawing.width() * scale) / 2, (size.height() - drawing.height() * scale) / 2);
        place.scale(scale, scale);
        const auto bounds = [&](const QString& element) {
            return renderer.transformForElement(element).mapRect(renderer.boundsOnElement(element));
        };
        alone.fill(Qt::transparent);
        QPainter painter(&alone);
        painter.setTransform(place);
        renderer.render(&painter, toQt(id), bounds(toQt(id)));
        const QString text = QStringLiteral("name:") + toQt(id);
        if (renderer.elementExists(text)) name = place.mapRect(bounds(text)).toAlignedRect();
    }
    /// Whether a point is on the control or its name, or within three pixels of them.
    bool near(QPoint point) const
    {
        if (name.adjusted(-3, -3, 3, 3).contains(point)) return true;
        const QImage around = alone.copy(QRect(point - QPoint(3, 3), QSize(7, 7)));
        for (int i = 0; i < 49; ++i) {
            if (qAlpha(around.pixel(i % 7, i / 7)) > 0) return true;
        }
        return false;
    }
    bool solid(int x, int y) const { return alone.valid(x, y) && qAlpha(alone.pixel(x, y)) > 200; }
    /// Points well inside, all over it.
    std::vector<QPoint> inside() const
    {
        std::vector<QPoint> points;
        for (int y = 3; y < alone.height(); y += 4) {
            for (int x = 3; x < alone.width(); x += 4) {
                if (solid(x, y) && solid(x - 3, y) && solid(x + 3, y) && solid(x, y - 3) && solid(x, y + 3))
                    points.emplace_back(x, y);
            }
        }
        return points;
    }
};

struct HardwarePictures : testing::TestWithParam<std::tuple<Picture, QSize>> {
    const Picture& what() const { return std::get<0>(GetParam()); }
    QSize size() const { return std::get<1>(GetParam()); }
};

std::string caseName(const testing::TestParamInfo<std::tuple<Picture, QSize>>& info)
{
    const auto& [picture, size] = info.param;
    return caseOf(picture) + "_" + std::to_string(size.width()) + "x" + std::to_string(size.height());
}

INSTANTIATE_TEST_SUITE_P(AtItsSizeSmallAndWide, HardwarePictures,
                         testing::Combine(testing::ValuesIn(allPictures().begin(), allPictures().end()),
                                          testing::Values(QSize(580, 480), QSize(435, 360), QSize(1000, 620))),
                         caseName);

TEST_P(HardwarePictures, EveryControlIsClickedWhereItIsDrawn)
{
    Shown t(what(), size());
    for (const PictureControl& control : what().controls) {
        const std::vector<QPoint> points = Drawn(what(), control.id, size()).inside();
        ASSERT_FALSE(points.empty()) << control.id;
        for (std::size_t i = 0; i < points.size(); i += std::max<std::size_t>(1, points.size() / 8)) {
            t.clicked.clear();
            t.click(points[i]);
            EXPECT_THAT(t.clicked, testing::ElementsAre(std::string(control.id)))
                << points[i].x() << ',' << points[i].y();
        }
    }
}

TEST_P(HardwarePictures, NothingIsClickedWhereNoControlIsDrawn)
{
    Shown t(what(), size());
    std::vector<Drawn> drawn;
    for (const PictureControl& control : what().controls) drawn.emplace_back(what(), control.id, size());
    int beside = 0;
    for (int y = 2; y < size().height(); y += 23) {
        for (int x = 2; x < size().width(); x += 23) {
            const QPoint point(x, y);
            if (std::ranges::any_of(drawn, [&](const Drawn& control) { return control.near(point); })) continue;
            ++beside;
            t.click(point);
        }
    }
    EXPECT_GT(beside, 50);
    EXPECT_THAT(t.clicked, testing::IsEmpty());
}

struct EachHardwarePicture : testing::TestWithParam<Picture> {
    const Picture& what() const { return GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(AtItsSize, EachHardwarePicture, testing::ValuesIn(allPictures().begin(), allPictures().end()),
                         [](const auto& shown) { return caseOf(shown.param); });

TEST_P(EachHardwarePicture, TabAndTheArrowsReachEveryControlInItsOrder)
{
    Shown t(what());
    t.picture->controls().front()->setFocus();
    for (const PictureControl& control : what().controls) {
        EXPECT_EQ(t.focused(), control.id);
        t.key(Qt::Key_Tab);
    }
    t.picture->controls().front()->setFocus();
    for (std::size_t i = 0; i < what().controls.size(); ++i) {
        EXPECT_EQ(t.focused(), what().controls[i].id);
        t.key(i % 2 == 0 ? Qt::Key_Right : Qt::Key_Down);
    }
    EXPECT_EQ(t.focused(), what().controls.front().id) << "behind the last comes the first";
    t.key(Qt::Key_Left);
    EXPECT_EQ(t.focused(), what().controls.back().id);
    t.key(Qt::Key_Up);
    EXPECT_EQ(t.focused(), what().controls[what().controls.size() - 2].id);
    EXPECT_THAT(t.clicked, testing::IsEmpty());
}

TEST_P(EachHardwarePicture, AScreenReaderFindsANamedButtonForEachControl)
{
    Shown t(what());
    QAccessibleInterface& whole = *QAccessible::queryAccessibleInterface(t.picture);
    EXPECT_EQ(fromQt(whole.text(QAccessible::Name)), what().description);
    ASSERT_EQ(whole.childCount(), static_cast<int>(what().controls.size()));
    for (int i = 0; i < whole.childCount(); ++i) {
        EXPECT_EQ(fromQt(whole.child(i)->text(QAccessible::Name)),
                  accessibleName(what().controls[static_cast<std::size_t>(i)]));
        EXPECT_EQ(whole.child(i)->role(), QAccessible::PushButton);
        EXPECT_TRUE(whole.child(i)->state().focusable);
    }
}

TEST(HardwarePicture, SpaceAndReturnClickTheFocusedControl)
{
    Shown t(PictureOf::Tqs);
    t.control("BTN(32)").setFocus();
    t.key(Qt::Key_Space);
    t.key(Qt::Key_Return);
    EXPECT_THAT(t.clicked, testing::ElementsAre("BTN(32)", "BTN(32)"));
}

TEST(HardwarePicture, ArrowsPassOverWhatIsHiddenOrDisabled)
{
    Shown t(PictureOf::OlderStick); // UB, H, MB, TG, LB
    t.control("BTN(7)").hide();
    t.control("BTN(6)").setEnabled(false);
    t.settle();
    t.control("HAT(4)").setFocus();
    t.key(Qt::Key_Right);
    EXPECT_EQ(t.focused(), "BTN(8)");
    t.key(Qt::Key_Left);
    EXPECT_EQ(t.focused(), "HAT(4)");
}

TEST(HardwarePicture, TheMenuKeyAndTheRightButtonAskForTheControlsMenu)
{
    Shown t(PictureOf::OlderStick);
    const QPoint hat = Drawn(t.picture->picture(), "HAT(4)", {580, 480}).inside().front();
    QContextMenuEvent right(QContextMenuEvent::Mouse, hat - t.control("HAT(4)").pos(), t.picture->mapToGlobal(hat));
    QApplication::sendEvent(&t.control("HAT(4)"), &right);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&t.control("BTN(6)"), &key);
    EXPECT_THAT(t.menus, testing::ElementsAre("HAT(4)", "BTN(6)"));
    EXPECT_THAT(t.clicked, testing::IsEmpty());
}

TEST(HardwarePicture, AttentionFollowsTheMouseAndThenTheFocus)
{
    Shown t(PictureOf::Wcs);
    const Picture& what = t.picture->picture();
    t.control("BTN(18)").setFocus();
    EXPECT_EQ(t.attended, "BTN(18)");
    t.move(Drawn(what, "BTN(21)", {580, 480}).inside().front());
    EXPECT_EQ(t.attended, "BTN(21)");
    t.move(QPoint(3, 3));
    EXPECT_EQ(t.attended, "BTN(18)");
    t.control("BTN(18)").clearFocus();
    EXPECT_EQ(t.attended, "");
}

TEST(HardwarePicture, AttentionFollowsTheKeysWhileTheMouseRestsOnAControl)
{
    Shown t(PictureOf::Wcs);
    t.move(Drawn(t.picture->picture(), "BTN(21)", {580, 480}).inside().front());
    t.control("BTN(22)").setFocus();
    EXPECT_EQ(t.attended, "BTN(22)");
    t.key(Qt::Key_Right);
    EXPECT_EQ(t.attended, "BTN(23)");
    t.control("BTN(23)").clearFocus();
    EXPECT_EQ(t.attended, "BTN(21)");
}

TEST(HardwarePicture, AHiddenControlIsNeitherDrawnNorClicked)
{
    Shown t(PictureOf::F22AndF16Stick);
    const std::vector<QPoint> port = Drawn(t.picture->picture(), "ROTARY(7)", {580, 480}).inside();
    const QPoint middle = port[port.size() / 2];
    EXPECT_EQ(t.picture->childAt(middle), &t.control("ROTARY(7)"));
    const QColor ground = t.image().pixelColor(3, 3);
    EXPECT_NE(t.image().pixelColor(middle), ground);
    t.control("ROTARY(7)").hide();
    t.settle();
    EXPECT_EQ(t.image().pixelColor(middle), ground);
    t.click(middle);
    EXPECT_THAT(t.clicked, testing::IsEmpty());
    t.control("ROTARY(7)").show();
    t.settle();
    EXPECT_NE(t.image().pixelColor(middle), ground);
    t.click(middle);
    EXPECT_THAT(t.clicked, testing::ElementsAre("ROTARY(7)"));
}

TEST(HardwarePicture, ADisabledControlIsFaintAndTakesNoClick)
{
    Shown t(PictureOf::Wcs);
    const QPoint inside = Drawn(t.picture->picture(), "BTN(20)", {580, 480}).inside().front();
    const QImage before = t.image();
    t.control("BTN(20)").setEnabled(false);
    t.settle();
    EXPECT_LT(t.image().pixelColor(inside).lightness(), before.pixelColor(inside).lightness() - 40);
    t.click(inside);
    EXPECT_THAT(t.clicked, testing::IsEmpty());
}

TEST(HardwarePicture, EachStateOfAControlLooksDifferent)
{
    Shown t(PictureOf::F22AndF16Stick);
    HardwareControl& hat = t.control("HAT(0)");
    const QPoint inside = Drawn(t.picture->picture(), "HAT(0)", {580, 480}).inside().front();
    t.control("BTN(1)").clearFocus();
    std::map<std::string, QImage> seen;
    const auto look = [&](const std::string& state) { seen[state] = t.image(); };
    look("normal");
    t.move(inside);
    look("hovered");
    QTest::mousePress(t.window.windowHandle(), Qt::LeftButton, {}, inside);
    look("pressed");
    QTest::mouseRelease(t.window.windowHandle(), Qt::LeftButton, {}, inside);
    t.move(QPoint(3, 3));
    hat.setFocus();
    look("focused");
    hat.clearFocus();
    hat.setAssigned(true);
    look("assigned");
    hat.setAssigned(false);
    hat.setCheckable(true);
    hat.setChecked(true);
    look("checked");
    hat.setChecked(false);
    hat.setEnabled(false);
    t.settle();
    look("disabled");
    for (auto one = seen.begin(); one != seen.end(); ++one) {
        for (auto other = std::next(one); other != seen.end(); ++other)
            EXPECT_NE(one->second, other->second) << one->first << " and " << other->first;
    }
    hat.setEnabled(true);
    t.settle();
    EXPECT_EQ(t.image(), seen["normal"]);
}

/// How a state of a control changes the picture: inside its shape, in the band of five pixels around it, and elsewhere.
/// The smooth edge of the shape doesn't count.
struct Change {
    int inside = 0;
    int around = 0;
    int elsewhere = 0;
    double lighter = 0; ///< of the pixels inside, on average
    double redder = 0;  ///< against blue
};

Change changeOf(const QImage& before, const QImage& after, const Drawn& control)
{
    Change change;
    const auto isNear = [&](int x, int y, int distance) {
        for (int dy = -distance; dy <= distance; ++dy)
            for (int dx = -distance; dx <= distance; ++dx)
                if (control.alone.valid(x + dx, y + dy) && qAlpha(control.alone.pixel(x + dx, y + dy)) > 0) return true;
        return false;
    };
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const QColor was = before.pixelColor(x, y);
            const QColor is = after.pixelColor(x, y);
            if (was == is) continue;
            const int alpha = control.alone.valid(x, y) ? qAlpha(control.alone.pixel(x, y)) : 0;
            if (alpha == 255) {
                ++change.inside;
                change.lighter += is.lightness() - was.lightness();
                change.redder += (is.red() - is.blue()) - (was.red() - was.blue());
            } else if (alpha == 0) {
                ++(isNear(x, y, 5) ? change.around : change.elsewhere);
            }
        }
    }
    change.lighter /= std::max(1, change.inside);
    change.redder /= std::max(1, change.inside);
    return change;
}

/// Pixels of about the colour; smooth lines have few of exactly theirs.
int countOf(const QImage& image, const QColor& colour)
{
    constexpr int tolerance = 24; // of each channel
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor found = image.pixelColor(x, y);
            count += std::abs(found.red() - colour.red()) <= tolerance &&
                     std::abs(found.green() - colour.green()) <= tolerance &&
                     std::abs(found.blue() - colour.blue()) <= tolerance;
        }
    }
    return count;
}

struct HardwareStates : testing::Test {
    Shown t{PictureOf::F22AndF16Stick};
    HardwareControl& hat = t.control("HAT(0)");
    Drawn drawn{t.picture->picture(), "HAT(0)", {580, 480}};
    QPoint inside = drawn.inside().front();
    QColor accent = t.picture->palette().color(QPalette::Highlight);
    QImage normal;

    HardwareStates()
    {
        if (QWidget* focused = t.window.focusWidget()) focused->clearFocus();
        t.move(QPoint(3, 3));
        normal = t.image();
    }
    Change change() { return changeOf(normal, t.image(), drawn); }
};

TEST_F(HardwareStates, UnderTheMouseItIsLighterWithALightEdge)
{
    t.move(inside);
    const Change now = change();
    EXPECT_GT(now.lighter, 20);
    EXPECT_GT(now.around, 60);
    EXPECT_EQ(now.elsewhere, 0);
    EXPECT_GT(countOf(t.image(), accent.lighter()), countOf(normal, accent.lighter()) + 20);
    EXPECT_LT(countOf(t.image(), accent), countOf(normal, accent) + 10);
}

TEST_F(HardwareStates, WithTheKeyboardItHasAnEdgeInTheColourOfSelectionsAndAWhiteOneAroundIt)
{
    hat.setFocus();
    const Change now = change();
    EXPECT_EQ(now.inside, 0);
    EXPECT_GT(now.around, 120);
    EXPECT_EQ(now.elsewhere, 0);
    EXPECT_GT(countOf(t.image(), accent), countOf(normal, accent) + 60);
    t.window.setPalette(darkPalette()); // on a light ground a white edge is not seen
    t.settle();
    const QImage onDark = t.image();
    hat.clearFocus();
    EXPECT_GT(countOf(onDark, Qt::white), countOf(t.image(), Qt::white) + 15);
}

TEST_F(HardwareStates, WhileItIsPressedItIsDarker)
{
    hat.setDown(true);
    hat.update();
    const Change now = change();
    EXPECT_LT(now.lighter, -15);
    EXPECT_EQ(now.around + now.elsewhere, 0);
}

TEST_F(HardwareStates, CheckedItIsOrange)
{
    hat.setCheckable(true);
    hat.setChecked(true);
    const Change now = change();
    EXPECT_GT(now.redder, 20);
    EXPECT_EQ(now.around + now.elsewhere, 0);
}

TEST_F(HardwareStates, AnAssignedOneHasAGreenMarkWithAWhiteEdgeAtItsUpperRight)
{
    hat.setAssigned(true);
    const QColor green(0x16, 0xA3, 0x4A);
    const QImage now = t.image();
    EXPECT_GT(countOf(now, green), 25);
    EXPECT_LT(countOf(now, green), 80);
    QRect mark;
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x)
            if (now.pixelColor(x, y) == green) mark |= QRect(x, y, 1, 1);
    EXPECT_NEAR(mark.width(), mark.height(), 1);
    EXPECT_NEAR(mark.width(), 7, 2);
    const QPoint corner = hat.markPlace();
    EXPECT_LE((mark.center() - corner).manhattanLength(), 6);
    const QRect shape = hat.shapeArea();
    EXPECT_GT(mark.center().x(), shape.center().x());
    EXPECT_LT(mark.center().y(), shape.center().y());
    hat.setAssigned(false);
    EXPECT_EQ(t.image(), normal);
}

TEST_F(HardwareStates, DisabledItDoesNotShowTheMouse)
{
    hat.setEnabled(false);
    t.settle();
    normal = t.image();
    t.move(inside);
    EXPECT_EQ(t.image(), normal);
}

TEST_F(HardwareStates, ReturnThatIsHeldClicksOnce)
{
    hat.setFocus();
    for (const bool repeats : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repeats);
        QApplication::sendEvent(&hat, &press);
    }
    t.key(Qt::Key_Enter);
    EXPECT_THAT(t.clicked, testing::ElementsAre("HAT(0)", "HAT(0)"));
}

TEST_F(HardwareStates, TheSamePictureAgainKeepsItsControls)
{
    hat.setFocus();
    t.picture->setPicture(t.picture->picture());
    EXPECT_EQ(t.picture->control("HAT(0)"), &hat);
    EXPECT_EQ(t.attended, "HAT(0)");
}

TEST(HardwarePicture, NamesFollowThePalette)
{
    Shown t(PictureOf::Wcs);
    const auto lightest = [&] {
        const QImage image = t.image().copy(QRect(480, 130, 60, 30)); // where T7 is written
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) found = std::max(found, image.pixelColor(x, y).lightness());
        }
        return found;
    };
    t.window.setPalette(darkPalette());
    t.settle();
    EXPECT_GT(lightest(), 200);
    EXPECT_LT(t.image().pixelColor(3, 3).lightness(), 80);
}

TEST(HardwarePicture, AnotherPictureMayBeSetByAClick)
{
    Shown t(PictureOf::Wcs);
    QObject::connect(t.picture, &HardwarePicture::clicked, [&t](const QString&) {
        if (&t.picture->picture() == &picture(PictureOf::Wcs)) t.picture->setPicture(picture(PictureOf::Tqs));
    });
    t.click(Drawn(picture(PictureOf::Wcs), "BTN(21)", {580, 480}).inside().front());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    t.settle();
    EXPECT_EQ(t.picture->control("BTN(21)"), nullptr);
    EXPECT_NE(t.attended, "BTN(21)");
    t.clicked.clear();
    t.click(Drawn(picture(PictureOf::Tqs), "ROTARY(0)", {580, 480}).inside().front());
    EXPECT_THAT(t.clicked, testing::ElementsAre("ROTARY(0)"));
}

} // namespace
} // namespace tarvex
