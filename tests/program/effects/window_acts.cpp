#include "documents/window/colour_selector.h"
#include "documents/window/toolbar.h"
#include "language/commands/coloured_insertion.h"
#include "platform/key_codes.h"
#include "program/effects/acts.h"

namespace tarvex {

namespace {

FindAndReplace& findWindow(TestProgram& t) { return t.program().findAndReplace; }

void seek(TestProgram& t, const std::string& text)
{
    findWindow(t).ComboTextFind.Text = text;
    findWindow(t).Command1.Click();
}

void replaceAll(TestProgram& t, const std::string& text, const std::string& by)
{
    t.menus().mnuEditReplace.Click();
    findWindow(t).ComboTextReplaceFind.Text = text;
    findWindow(t).ComboTextReplaceWith.Text = by;
    findWindow(t).Command6.Click();
}

void openBar(TestProgram& t, const std::string& text)
{
    t.menus().mnuEditFindBar.Click();
    t.program().findBar.Text.Text = text;
}

/// A statement, as a window puts it together.
void insert(Editor& e, const char* text)
{
    BeginColInsert(e);
    CheckAtLineBeginning(e);
    InsertColouredString(e, text, 0x0000FF);
    EndColInsert(e);
}

} // namespace

const std::vector<Act>& windowActs()
{
    static const std::vector<Act> all{
        {"find",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditFind.Click();
             seek(t, "gear");
         }},
        {"find next",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditFind.Click();
             seek(t, "gear");
             findWindow(t).Command1.Click();
         }},
        {"find nothing",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditFind.Click();
             seek(t, "nowhere");
         }},
        {"find in the macro file",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditFind.Click();
             findWindow(t).OptionMacroF.Click();
             seek(t, "fire");
         }},
        {"replace one",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditReplace.Click();
             findWindow(t).ComboTextReplaceFind.Text = "gear";
             findWindow(t).ComboTextReplaceWith.Text = "wheels";
             findWindow(t).Command3.Click();
             findWindow(t).Command5.Click();
         }},
        {"replace all", [](TestProgram& t, Editor&) { replaceAll(t, "gear", "wheels"); }},
        {"replace what isn't there", [](TestProgram& t, Editor&) { replaceAll(t, "nowhere", "here"); }},
        {"go to line 2",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditGoto.Click();
             findWindow(t).LineToFind.Text = "2";
             findWindow(t).Command7.Click();
         }},
        {"find window closed",
         [](TestProgram& t, Editor&) {
             t.menus().mnuEditFind.Click();
             seek(t, "gear");
             findWindow(t).Command2.Click();
         }},
        {"find bar", [](TestProgram& t, Editor&) { openBar(t, "gear"); }},
        {"find bar, next and previous",
         [](TestProgram& t, Editor&) {
             openBar(t, "gear");
             t.program().findBar.Next.Click();
             t.program().findBar.Next.Click();
             t.program().findBar.Previous.Click();
         }},
        {"find bar closed",
         [](TestProgram& t, Editor&) {
             openBar(t, "gear");
             t.program().findBar.Close.Click();
         }},
        {"colour of the selector",
         [](TestProgram&, Editor& e) {
             Picture1_Click(e);
             e.ColourSelector.Command1[2].Click();
         }},
        {"Esc in the colour selector",
         [](TestProgram&, Editor& e) {
             Picture1_Click(e);
             e.ColourSelector.form.KeyDown(keyCode::escape, 0);
         }},
        {"statement inserted", [](TestProgram&, Editor& e) { insert(e, "BTN S3 b"); }},
        {"statement without a blank",
         [](TestProgram&, Editor& e) {
             BeginColInsert(e);
             InsertColouredStringNoSpace(e, "BTN S3 b", 0x0000FF);
             EndColInsert(e);
         }},
        {"black blanks", [](TestProgram&, Editor& e) { InsertBlackBlanks(e); }},
        {"line end", [](TestProgram&, Editor& e) { InsertCarriageReturn(e); }},
        {"black text",
         [](TestProgram&, Editor& e) {
             e.insertion.InsertText = "word";
             InsertBlackText(e);
         }},
        {"Safein", [](TestProgram& t, Editor&) { t.program().safein.form.open(); }},
        {"Composer", [](TestProgram& t, Editor&) { t.program().composer.form.open(); }},
        {"Template Editor", [](TestProgram& t, Editor&) { t.program().templateEditor.form.open(); }},
        {"error report that ends the program",
         [](TestProgram& t, Editor&) { t.program().shared.errors.exitInEmergency(); }},
    };
    return all;
}

} // namespace tarvex
