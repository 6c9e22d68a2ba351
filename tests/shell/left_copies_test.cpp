#include "shell/left_copies.h"

#include "support/scripted_dialogues.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(ReportLeftCopies, NamesEachCopy)
{
    ScriptedDialogues dialogues;
    reportLeftCopies(dialogues, {"/home/me/Recovery/mig.b50.1", "/home/me/Recovery/mig.m50.1"});
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(dialogues.boxes[0].title, "Oops!");
    EXPECT_EQ(dialogues.boxes[0].text,
              "Somebody pulled the plug on me while I was saving, so the file in question may only be half there. "
              "Don't panic: I had put a copy of the old one aside. Have a look, and throw the copy away when you don't "
              "need it any more:\n\n/home/me/Recovery/mig.b50.1\n/home/me/Recovery/mig.m50.1");
}

TEST(ReportLeftCopies, WithoutCopiesThereIsNoBox)
{
    ScriptedDialogues dialogues;
    reportLeftCopies(dialogues, {});
    EXPECT_TRUE(dialogues.boxes.empty());
}

} // namespace
} // namespace tarvex
