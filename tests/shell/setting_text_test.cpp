#include "shell/setting_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(SettingText, ThatFitsItsBufferIsWhole)
{
    const SettingText text = SettingText::cutTo(3, "abc");
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.whole(), "abc");
    EXPECT_FALSE(text.isCut());
}

TEST(SettingText, ThatIsLongerReadsCutAndKnowsTheWhole)
{
    const SettingText text = SettingText::cutTo(3, "ab\xC3\xA4\xC3\xB6");
    EXPECT_EQ(text, "ab\xC3\xA4") << "characters, not bytes";
    EXPECT_EQ(text.whole(), "ab\xC3\xA4\xC3\xB6");
    EXPECT_TRUE(text.isCut());
    EXPECT_EQ(SettingText(text).whole(), text.whole()) << "so does a copy";
}

TEST(SettingText, AssignedAsItWasShownIsUnchangedAndAnyOtherTextIsWhole)
{
    SettingText text = SettingText::cutTo(3, "abcdef");
    text = std::string("abc");
    EXPECT_EQ(text.whole(), "abcdef");
    text = "abcd";
    EXPECT_EQ(text.whole(), "abcd");
    text = "abc";
    EXPECT_EQ(text.whole(), "abc");
}

TEST(SettingText, ChangedAsAPlainStringIsWhole)
{
    SettingText text = SettingText::cutTo(3, "abcdef");
    text.pop_back();
    EXPECT_EQ(text.whole(), "ab");
    text += "x";
    EXPECT_EQ(text.whole(), "abx");
    text.clear();
    EXPECT_EQ(text.whole(), "");
}

TEST(SettingText, InLowerCaseIsSoAsAWhole)
{
    const SettingText text = SettingText::cutTo(3, "ABCDEF").lower();
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.whole(), "abcdef");
    EXPECT_EQ(SettingText("AB").lower().whole(), "ab");
}

TEST(SettingText, WithALetterChangedIsWholeAlsoWhenItIsAsLong)
{
    SettingText text = SettingText::cutTo(3, "abcdef");
    static_cast<std::string&>(text)[0] = 'x';
    EXPECT_EQ(text.whole(), "xbc");
}

TEST(SettingText, OfItsOwnLengthInLowerCaseIsCutAsItWas)
{
    const SettingText text = SettingText::cutTo(3, "ABCDEF").lower();
    EXPECT_TRUE(text.isCut());
    EXPECT_FALSE(SettingText("ABC").lower().isCut());
}

} // namespace
} // namespace tarvex
