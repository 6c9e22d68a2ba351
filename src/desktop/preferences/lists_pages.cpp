#include "desktop/preferences/page_rows.h"
#include "desktop/preferences/pages.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace tarvex {

namespace {

/// A list at the left with its "Remove", the details of the chosen entry at the right.
QWidget* listAndDetails(QListWidget* list, QPushButton* remove, const QString& caption, QWidget* details)
{
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout;
    auto* label = new QLabel(caption, whole);
    label->setBuddy(list);
    column->addWidget(label);
    column->addWidget(list);
    column->addWidget(remove);
    auto* line = new QHBoxLayout(whole);
    line->addLayout(column, 2);
    line->addWidget(details, 3);
    return whole;
}

} // namespace

QWidget* favouritesPageView(FavouritesPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    QListWidget* list = rows->list(page.List2, QStringLiteral("List2"), QStringLiteral("Favourites"));
    QPushButton* remove = rows->button(page.Command13, QStringLiteral("Command13"));
    rows->lineRow(QStringLiteral("&Name:"), page.Text7, QStringLiteral("Text7"));
    rows->lineRow(QStringLiteral("&Joystick file:"), page.Text8, QStringLiteral("Text8"));
    rows->lineRow(QStringLiteral("Mac&ro file:"), page.Text9, QStringLiteral("Text9"));
    rows->wide(rows->button(page.Command14, QStringLiteral("Command14")), Qt::AlignRight);
    rows->gap();
    rows->wide(rows->check(page.LoadAppCheckBox, QStringLiteral("LoadAppCheckBox")));
    rows->end();
    return listAndDetails(list, remove, QStringLiteral("&List of favourites:"), rows);
}

QWidget* gamesPageView(GamesPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    QListWidget* list = rows->list(page.List3, QStringLiteral("List3"), QStringLiteral("Games"));
    QPushButton* remove = rows->button(page.Command12, QStringLiteral("Command12"));
    rows->lineRow(QStringLiteral("&Name:"), page.Text12, QStringLiteral("Text12"));
    rows->lineRow(QStringLiteral("Game &path:"), page.Text11, QStringLiteral("Text11"));
    rows->lineRow(QStringLiteral("&Working directory:"), page.Text4, QStringLiteral("Text4"));
    rows->lineRow(QStringLiteral("&Joystick file:"), page.Text13, QStringLiteral("Text13"));
    rows->end();
    return listAndDetails(list, remove, QStringLiteral("&List of games:"), rows);
}

} // namespace tarvex
