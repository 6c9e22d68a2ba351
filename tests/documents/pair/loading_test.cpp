#include "documents/pair/loading.h"

#include "documents/pair/editor.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(Loading, GuardsNestAndGiveTheFormerValueBack)
{
    TestProgram t;
    Shared& shared = t.program().shared;
    {
        const Loading outer(shared);
        {
            const Loading inner(shared);
            EXPECT_EQ(shared.IsLoading, 1);
        }
        EXPECT_EQ(shared.IsLoading, 1);
    }
    EXPECT_EQ(shared.IsLoading, 0);
}

TEST(Loading, AFailureEndsTheGuard)
{
    TestProgram t;
    Shared& shared = t.program().shared;
    Steps()([&] {
        const Loading loading(shared);
        throw std::runtime_error("odd");
    });
    EXPECT_EQ(shared.IsLoading, 0);
}

TEST(Loading, ColouringOrLayingOutATextWhileAFileIsLoadedDoesNotEndTheLoading)
{
    TestProgram t;
    Editor& editor = t.editor();
    editor.JoystickText.setText("BTN S1 x");
    const Loading loading(t.program().shared);
    editor.operations.ApplyColourHighlighting();
    EXPECT_EQ(t.program().shared.IsLoading, 1);
    t.menus().mnuRemoveColourJoystick.Click();
    EXPECT_EQ(t.program().shared.IsLoading, 1);
    t.menus().mnuViewReformat.Click();
    EXPECT_EQ(t.program().shared.IsLoading, 1);
}

} // namespace
} // namespace tarvex
