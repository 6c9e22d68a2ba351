#include "shell/mum.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct MumTest : testing::Test {
    Mum mum;
    StatusBar::Panel& progress = mum.StatusBar.Panels(panel::progress);
    StatusBar::Panel& saved = mum.StatusBar.Panels(panel::savedState);
};

TEST_F(MumTest, ACompileResultBeginsWithItsWord)
{
    EXPECT_FALSE(showsCompileResult(mum));
    for (const char* text : {"Compiled and downloaded successfully! (File size: 1 bytes)", "Compiler reported"}) {
        progress.Text = text;
        EXPECT_TRUE(showsCompileResult(mum)) << text;
    }
    for (const char* text : {"", "compiled", "To Compile", "Compil"}) {
        progress.Text = text;
        EXPECT_FALSE(showsCompileResult(mum)) << text;
    }
}

TEST_F(MumTest, ADefinitionHasAnEqualsSign)
{
    EXPECT_FALSE(showsDefinition(mum));
    progress.Text = "fire = f";
    EXPECT_TRUE(showsDefinition(mum));
    progress.Text = "fire";
    EXPECT_FALSE(showsDefinition(mum));
}

TEST_F(MumTest, UnsavedChangesAreThoseOfThePicture)
{
    for (const int state : {0, 1, 2}) {
        saved.Picture = savedStatePicture(state);
        EXPECT_EQ(showsUnsavedChanges(mum), state == 1) << state;
    }
}

} // namespace
} // namespace tarvex
