#include "download/own_tools.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// A program with no tool windows but these; which of them were shown.
struct OwnTools : TestProgram {
    explicit OwnTools(const std::vector<std::string>& windows = {"ViewImage", "KeyTestForm", "JoyPlot", "TCAform"})
    {
        program().mum.toolWindows = {};
        for (MenuItem* item : {&menus().mnuAppsImageViewer, &menus().mnuSendToKeyTest, &menus().mnuAppsJoyAnalyser})
            item->handler = nullptr;
        for (const std::string& name : windows) {
            program().mum.toolWindows.add({.name = name, .form = &form, .show = [this, name] { shown += name + " "; }});
        }
        wireOwnTools(editor());
    }
    Form form;
    std::string shown;
};

TEST(OwnTools, EachCommandShowsItsWindow)
{
    OwnTools t;
    t.menus().mnuAppsImageViewer.Click();
    t.menus().mnuSendToKeyTest.Click();
    EXPECT_EQ(t.shown, "ViewImage KeyTestForm ");
}

TEST(OwnTools, UseTcaChoosesTheAnalyser)
{
    OwnTools t;
    for (const std::int16_t use : {0, 1, -1}) {
        t.settings().UseTCA = use;
        t.menus().mnuAppsJoyAnalyser.Click();
    }
    EXPECT_EQ(t.shown, "JoyPlot TCAform TCAform ") << "every value but 0 is a yes";
}

TEST(OwnTools, ACommandWhoseWindowIsNotThereHasNoHandler)
{
    OwnTools t({"JoyPlot"});
    for (const MenuItem* item :
         {&t.menus().mnuAppsImageViewer, &t.menus().mnuSendToKeyTest, &t.menus().mnuAppsJoyAnalyser})
        EXPECT_FALSE(item->handler) << item->Name;
}

} // namespace
} // namespace tarvex
