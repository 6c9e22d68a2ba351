#include "desktop/text.h"

#include "desktop/input.h"
#include "platform/input.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(ToQt, AColourOfTheSettingsHasRedInItsLowByte)
{
    EXPECT_EQ(toQt(Colour{0x332211}), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(toQt(Colour{255}), QColor(Qt::red));
}

TEST(ToQt, TextsComeBackAsTheyWere)
{
    EXPECT_EQ(fromQt(toQt(std::string_view("\xC3\xA4 b"))), "\xC3\xA4 b");
    EXPECT_EQ(toQt(std::string_view()), QString());
}

TEST(AccessKeys, WithoutThemEachAmpersandStandsForItself)
{
    EXPECT_EQ(withoutAccessKeys("a & b && c"), QString("a && b &&&& c"));
}

TEST(AccessKeys, OneStandsBeforeTheFirstLetterThatIsTheKeyInItsCase)
{
    EXPECT_EQ(withAccessKey("Find first", 'f'), QString("Find &first"));
    EXPECT_EQ(withAccessKey("Find first", 'F'), QString("&Find first"));
    EXPECT_EQ(withAccessKey("Find & close", 'c'), QString("Find && &close"));
    EXPECT_EQ(withAccessKey("Find first", 'x'), QString("Find first"));
}

TEST(AccessKeys, OfSeveralTheFirstHolds)
{
    EXPECT_EQ(withOneAccessKey("&Open"), QString("&Open"));
    EXPECT_EQ(withOneAccessKey("Open"), QString("Open"));
    EXPECT_EQ(withOneAccessKey("&1 a&b"), QString("&1 a&&b"));
    EXPECT_EQ(withOneAccessKey("&1 a&&b"), QString("&1 a&&b"));
    EXPECT_EQ(withOneAccessKey("a&&b &c"), QString("a&&b &c"));
    EXPECT_EQ(withOneAccessKey("a&&b&&c"), QString("a&&b&&c"));
    EXPECT_EQ(withOneAccessKey("end&"), QString("end&"));
    EXPECT_EQ(withOneAccessKey("end&&"), QString("end&&"));
}

TEST(WrappingTip, IsMarkupThatShowsTheTextAsItStands)
{
    EXPECT_EQ(wrappingTip("a <b>"), QString("<span>a &lt;b&gt;</span>"));
    EXPECT_EQ(wrappingTip(QString()), QString());
}

TEST(WithBreaksInLongWords, ABreakStandsBehindEachSixtyCharactersOfAWord)
{
    const QString sixty(60, u'x');
    const QString gap(u'\u200B');
    EXPECT_EQ(withBreaksInLongWords(sixty), sixty);
    EXPECT_EQ(withBreaksInLongWords(sixty + u'y'), sixty + gap + u'y');
    EXPECT_EQ(withBreaksInLongWords(sixty + sixty + u'y'), sixty + gap + sixty + gap + u'y');
    EXPECT_EQ(withBreaksInLongWords(sixty + u' ' + sixty), sixty + u' ' + sixty);
}

TEST(Twips, FifteenAreAPixelAndPartsAreRounded)
{
    EXPECT_EQ(toPixels(150), 10);
    EXPECT_EQ(toPixels(157), 10);
    EXPECT_EQ(toPixels(158), 11);
    EXPECT_EQ(toPixels(-150), -10);
    EXPECT_FLOAT_EQ(toTwips(10), 150);
}

TEST(ToLogic, ButtonsAndKeysThatAreHeldAddUp)
{
    EXPECT_EQ(toLogic(Qt::MouseButtons(Qt::NoButton)), 0);
    EXPECT_EQ(toLogic(Qt::MouseButtons(Qt::LeftButton)), mouseButton::left);
    EXPECT_EQ(toLogic(Qt::MouseButtons(Qt::RightButton)), mouseButton::right);
    EXPECT_EQ(toLogic(Qt::LeftButton | Qt::MiddleButton), mouseButton::left + mouseButton::middle);
    EXPECT_EQ(toLogic(Qt::KeyboardModifiers(Qt::NoModifier)), 0);
    EXPECT_EQ(toLogic(Qt::KeyboardModifiers(Qt::ShiftModifier)), shiftKey::shift);
    EXPECT_EQ(toLogic(Qt::ControlModifier | Qt::AltModifier), shiftKey::ctrl + shiftKey::alt);
}

} // namespace
} // namespace tarvex
