#include "desktop/preferences/page_rows.h"
#include "desktop/preferences/pages.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

namespace tarvex {

namespace {

QWidget* throttlePage(WinLoadPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    rows->wide(rows->options(page.WinLoadThrottle, QStringLiteral("WinLoadThrottle"), QStringLiteral("Throttle")));
    rows->end();
    return rows;
}

/// The list of mice, and which throttle statement each of their buttons is on.
QWidget* miceFrame(WinLoadPage& page, PageRows& rows)
{
    Bindings& bindings = rows.bindings();
    auto* frame = new QGroupBox(QStringLiteral("Mice type"), &rows);
    frame->setObjectName(QStringLiteral("FrameMouse"));
    auto* line = new QHBoxLayout(frame);
    for (std::size_t kind = 0; kind < page.MouseList.size(); ++kind) {
        QListWidget* list =
            rows.list(page.MouseList[kind], QStringLiteral("MouseList(%1)").arg(kind), QStringLiteral("Types of mice"));
        line->addWidget(list);
    }
    auto* buttons = new QFormLayout;
    const char* const names[] = {"Left", "Middle", "Right"};
    for (std::size_t i = 0; i < page.Label5.size(); ++i) {
        auto* label = new QLabel(frame);
        label->setObjectName(QStringLiteral("Label5(%1)").arg(i));
        bindings.bind(page.Label5[i].Caption, [label](const std::string& text) { label->setText(toQt(text)); });
        buttons->addRow(QLatin1String(names[i]), label);
    }
    line->addLayout(buttons);
    bindings.bind(page.FrameMouseVisible, [frame](bool on) { frame->setVisible(on); });
    return frame;
}

QWidget* mousePage(WinLoadPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    auto* both = new QWidget(rows);
    auto* line = new QHBoxLayout(both);
    line->setContentsMargins({});
    line->addWidget(rows->options(page.OptionMouse, QStringLiteral("OptionMouse"), QStringLiteral("Mouse")), 0,
                    Qt::AlignTop);
    line->addWidget(miceFrame(page, *rows), 1);
    rows->wide(both);
    rows->end();
    return rows;
}

QWidget* extraPage(WinLoadPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    rows->wide(rows->check(page.CheckUseBlanker, QStringLiteral("CheckUseBlanker")));
    rows->lineRow(QStringLiteral("Ext&ra text:"), page.ExtraText, QStringLiteral("ExtraText"));
    rows->wide(rows->check(page.CheckStatusBarErrors, QStringLiteral("CheckStatusBarErrors")));
    rows->end();
    return rows;
}

} // namespace

QWidget* winLoadPageView(WinLoadPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    rows->wide(rows->check(page.CheckApplyWinLoad, QStringLiteral("CheckApplyWinLoad")));
    auto* options = new QLabel(rows);
    options->setObjectName(QStringLiteral("WinLoadLabel"));
    options->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bindings.bind(page.WinLoadLabel.Caption, [options](const std::string& text) { options->setText(toQt(text)); });
    rows->row(QStringLiteral("Options:"), options);
    auto* tabs = new QTabWidget(rows);
    tabs->setObjectName(QStringLiteral("SSTab3"));
    tabs->setAccessibleName(QStringLiteral("WinLoad options"));
    tabs->addTab(throttlePage(page, bindings), {});
    tabs->addTab(mousePage(page, bindings), {});
    tabs->addTab(extraPage(page, bindings), {});
    bindings.pages(page.SSTab3, *tabs);
    rows->wide(tabs);
    return rows;
}

} // namespace tarvex
