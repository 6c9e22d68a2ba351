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
    EXPECT_NE(dialogues.boxes[0].text.find("\n/home/me/Recovery/mig.b50.1\n/home/me/Recovery/mig.m50.1"),
              std::string::npos);
}

TEST(ReportLeftCopies, WithoutCopiesThereIsNoBox)
{
    ScriptedDialogues dialogues;
    reportLeftCopies(dialogues, {});
    EXPECT_TRUE(dialogues.boxes.empty());
}

} // namespace
} // namespace tarvex
