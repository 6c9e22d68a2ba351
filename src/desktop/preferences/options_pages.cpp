#include "desktop/documents/text/pane_view.h"
#include "desktop/preferences/page_rows.h"
#include "desktop/preferences/pages.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

namespace tarvex {

namespace {

PaneView* sampleView(Pane& pane, const QString& name, const QString& accessibleName)
{
    auto* view = new PaneView(pane);
    view->setObjectName(name);
    view->setAccessibleName(accessibleName);
    view->setTabChangesFocus(true);
    return view;
}

QGroupBox* frameOf(PageRows& rows, const QString& title, std::initializer_list<QWidget*> widgets)
{
    auto* frame = new QGroupBox(title, &rows);
    auto* column = new QVBoxLayout(frame);
    for (QWidget* widget : widgets) column->addWidget(widget);
    rows.wide(frame);
    return frame;
}

} // namespace

QWidget* coloursPageView(ColoursPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    QListWidget* list = rows->list(page.List1, QStringLiteral("List1"), QStringLiteral("Items with a colour"),
                                   Bindings::Runs::OnClickOrReturn); // arrow keys mustn't ask for a colour each
    auto* samples = new QTabWidget(rows);
    samples->setObjectName(QStringLiteral("SSTab2"));
    samples->setAccessibleName(QStringLiteral("Samples"));
    samples->addTab(sampleView(page.ExampleJoystickText, QStringLiteral("ExampleJoystickText"),
                               QStringLiteral("Sample of a joystick file")),
                    {});
    samples->addTab(
        sampleView(page.ExampleMacroText, QStringLiteral("ExampleMacroText"), QStringLiteral("Sample of a macro file")),
        {});
    bindings.pages(page.SSTab2, *samples);
    auto* both = new QWidget(rows);
    auto* line = new QHBoxLayout(both);
    line->setContentsMargins({});
    line->addWidget(list, 2);
    line->addWidget(samples, 5);
    rows->wide(both);
    rows->wide(rows->check(page.CheckBox1, QStringLiteral("CheckBox1")));
    auto* fonts = new QWidget(rows);
    auto* fontLine = new QHBoxLayout(fonts);
    fontLine->setContentsMargins({});
    fontLine->addWidget(rows->button(page.Command18, QStringLiteral("Command18")));
    fontLine->addWidget(rows->check(page.CheckFixedPitch, QStringLiteral("CheckFixedPitch")));
    fontLine->addStretch();
    fontLine->addWidget(rows->button(page.Command17, QStringLiteral("Command17")));
    rows->wide(fonts);
    return rows;
}

QWidget* savingPageView(SavingPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    auto* saving = new PageRows(bindings, rows);
    saving->wide(saving->check(page.Check3[0], QStringLiteral("Check3(0)")));
    saving->numberRow(QStringLiteral("Minutes &between automatic saves:"), page.Text3, QStringLiteral("Text3"));
    frameOf(*rows, QStringLiteral("Automatic save"), {saving});
    frameOf(*rows, QStringLiteral("Opening and saving"),
            {rows->check(page.Check3[1], QStringLiteral("Check3(1)")),
             rows->check(page.OpenBothChk, QStringLiteral("OpenBothChk")),
             rows->check(page.SaveBothChk, QStringLiteral("SaveBothChk"))});
    auto* undo = new PageRows(bindings, rows);
    undo->numberRow(QStringLiteral("&Undo levels (10 to 30000):"), page.TxtUndoLevels, QStringLiteral("TxtUndoLevels"));
    undo->wide(undo->check(page.CheckUndoSave, QStringLiteral("CheckUndoSave")));
    undo->wide(undo->check(page.CheckHighlightOnUndo, QStringLiteral("CheckHighlightOnUndo")));
    QPushButton* clear = undo->button(page.Command11, QStringLiteral("Command11"));
    clear->setAccessibleName(QStringLiteral("Clear the undo levels now"));
    undo->wide(clear, Qt::AlignLeft);
    frameOf(*rows, QStringLiteral("Undo"), {undo});
    rows->end();
    return rows;
}

QWidget* miscellaneousPageView(MiscellaneousPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    frameOf(*rows, QStringLiteral("Toolbar"),
            {rows->check(page.CheckFlattenToolbar[0], QStringLiteral("CheckFlattenToolbar(0)")),
             rows->check(page.CheckFlattenToolbar[1], QStringLiteral("CheckFlattenToolbar(1)")),
             rows->check(page.CheckFlattenToolbar[2], QStringLiteral("CheckFlattenToolbar(2)")),
             rows->check(page.CheckExtraToolbar, QStringLiteral("CheckExtraToolbar")),
             rows->check(page.CheckShowTooltips, QStringLiteral("CheckShowTooltips")),
             rows->check(page.CheckButtonsOnStatusBar, QStringLiteral("CheckButtonsOnStatusBar"))});
    frameOf(*rows, QStringLiteral("Windows and tools"),
            {rows->check(page.CheckMinimiseAll, QStringLiteral("CheckMinimiseAll")),
             rows->check(page.CheckAggressiveFocus, QStringLiteral("CheckAggressiveFocus")),
             rows->check(page.CheckUseTCA, QStringLiteral("CheckUseTCA")),
             rows->check(page.CheckDisableCalibrate, QStringLiteral("CheckDisableCalibrate")),
             rows->check(page.CheckIdentify, QStringLiteral("CheckIdentify")),
             rows->check(page.WavPlay, QStringLiteral("WavPlay"))});
    rows->wide(rows->options(page.OptionImagesToShow, QStringLiteral("OptionImagesToShow"),
                             QStringLiteral("Pictures in the Composer")));
    auto* games = new QComboBox(rows);
    games->setObjectName(QStringLiteral("ComboGamesCaption"));
    games->setEditable(true);
    games->setInsertPolicy(QComboBox::NoInsert);
    bindings.comboBox(page.ComboGamesCaption, *games);
    rows->row(QStringLiteral("Caption of the games men&u:"), games);
    rows->numberRow(QStringLiteral("&Delay that DLY starts with:"), page.DLYText, QStringLiteral("DLYText"));
    rows->end();
    return rows;
}

} // namespace tarvex
