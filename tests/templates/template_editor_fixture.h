// The program on a machine of its own with the Template Editor open, and what a user does there.
#pragma once

#include "support/test_program.h"
#include "templates/template_editor.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvex {

struct TemplateEditorTest : testing::Test {
    TestProgram t;
    TemplateForm& window = t.program().templateEditor;
    Pane& pane = window.TemplateText;
    const std::string folder = "c:\\tarvex\\Templates\\";

    TemplateEditorTest()
    {
        t.files.addDirectory("c:\\tarvex\\Templates");
        t.menus().mnuAppsTemplate.Click();
    }
    void type(const std::string& text) { pane.userEdit(pane.SelStart(), pane.SelLength(), text); }
    void open(const std::string& path)
    {
        t.dialogues.filesToOpen = {path};
        window.Command1[0].Click();
    }
    void saveAs(const std::string& path)
    {
        t.dialogues.filesToSave = {path};
        window.mnuFileSaveAs.Click();
    }
    std::string text() { return pane.Text(); }
    const MessageBox& box() { return t.lastBox(); }
};

} // namespace tarvex
