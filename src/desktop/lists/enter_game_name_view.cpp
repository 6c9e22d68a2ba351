#include "desktop/lists/enter_game_name_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/line_box.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tarvex {

namespace {

constexpr int widthInCharacters = 46;

} // namespace

EnterGameNameView::EnterGameNameView(EnterGameName& form, QWidget* parent)
    : FormWindow(form.Form, QStringLiteral("EnterGameName"), parent)
{
    auto* name = new LineBox(form.Text1, QStringLiteral("Text1"), m_bindings);
    auto* path = new LineBox(form.Text2, QStringLiteral("Text2"), m_bindings);
    auto* directory = new LineBox(form.Text3, QStringLiteral("Text3"), m_bindings);
    auto* joystickFile = new LineBox(form.Text4, QStringLiteral("Text4"), m_bindings);
    path->setMinimumWidth(path->fontMetrics().averageCharWidth() * widthInCharacters);

    auto* rows = new QGridLayout;
    addRow(*rows, QStringLiteral("&Name:"), name, nullptr, nullptr);
    addRow(*rows, QStringLiteral("Game &path:"), path, button(form.Command1[0], QStringLiteral("Command1(0)")),
           helpButton(form.Command5, QStringLiteral("Command5"), QStringLiteral("Help on the game's path")));
    addRow(*rows, QStringLiteral("&Working directory:"), directory, button(form.Command2, QStringLiteral("Command2")),
           helpButton(form.Command6, QStringLiteral("Command6"), QStringLiteral("Help on the working directory")));
    addRow(*rows, QStringLiteral("&Joystick file:"), joystickFile,
           button(form.Command1[1], QStringLiteral("Command1(1)")), nullptr);

    auto* note = new QLabel(QStringLiteral("Note: you can edit these later in Preferences on the Games tab"));
    note->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addWidget(note);
    column->addStretch();
    column->addLayout(closingButtons(form));
    orderTabs();
    name->setFocus();
}

QPushButton* EnterGameNameView::button(Button& state, const QString& name)
{
    auto* widget = new QPushButton(this);
    widget->setObjectName(name);
    widget->setAutoDefault(false); // Return is OK, wherever it is pressed
    m_bindings.button(state, *widget);
    return widget;
}

QPushButton* EnterGameNameView::helpButton(Button& state, const QString& name, const QString& subject)
{
    QPushButton* widget = button(state, name);
    widget->setToolTip(subject);
    widget->setAccessibleName(subject);
    widget->setFixedWidth(widget->fontMetrics().height() * 2);
    return widget;
}

void EnterGameNameView::addRow(QGridLayout& rows, const QString& caption, QWidget* box, QPushButton* find,
                               QWidget* help)
{
    const int row = rows.rowCount();
    auto* label = new QLabel(caption, this);
    label->setBuddy(box);
    if (find != nullptr) find->setAccessibleName(find->text() + u' ' + QString(caption).remove(u'&').remove(u':'));
    rows.addWidget(label, row, 0);
    rows.addWidget(box, row, 1, 1, find == nullptr ? 3 : 1);
    if (find != nullptr) rows.addWidget(find, row, 2);
    if (help != nullptr) rows.addWidget(help, row, 3);
    rows.setColumnStretch(1, 1);
}

QBoxLayout* EnterGameNameView::closingButtons(EnterGameName& form)
{
    auto* line = new QHBoxLayout;
    line->addWidget(tarvex::closingButtons(*this,
                                           {{QDialogButtonBox::Ok, form.Command3, QStringLiteral("Command3")},
                                            {QDialogButtonBox::Cancel, form.Command4, QStringLiteral("Command4")}},
                                           m_bindings));
    return line;
}

/// Along the lines, each box before what helps to fill it.
void EnterGameNameView::orderTabs()
{
    const char* const names[] = {"Text1",    "Text2", "Command1(0)", "Command5", "Text3",   "Command2",
                                 "Command6", "Text4", "Command1(1)", "Command3", "Command4"};
    QWidget* before = nullptr;
    for (const char* name : names) {
        auto* widget = findChild<QWidget*>(QLatin1String(name));
        if (before != nullptr) setTabOrder(before, widget);
        before = widget;
    }
}

} // namespace tarvex
