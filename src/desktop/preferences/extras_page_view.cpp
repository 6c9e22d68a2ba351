#include "desktop/preferences/drives_table.h"
#include "desktop/preferences/page_rows.h"
#include "desktop/preferences/pages.h"
#include "desktop/preferences/path_box.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace tarvex {

namespace {

QGroupBox* drivesFrame(ExtrasPage& page, PageRows& rows)
{
    auto* frame = new QGroupBox(QStringLiteral("Drives"), &rows);
    auto* line = new QHBoxLayout(frame);
    line->addWidget(new DrivesTable(page, rows.bindings(), frame), 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(rows.button(page.DriveBrowse, QStringLiteral("DriveBrowse")));
    buttons->addWidget(rows.button(page.DriveAdd, QStringLiteral("DriveAdd")));
    buttons->addWidget(rows.button(page.DriveReset, QStringLiteral("DriveReset")));
    buttons->addStretch();
    line->addLayout(buttons);
    return frame;
}

/// The path, its two buttons, and below what the test gave.
void addRunner(ExtrasPage::RunnerRow& state, PageRows& rows, const QString& name, const QString& caption)
{
    Bindings& bindings = rows.bindings();
    auto* path = new PathBox(state.Path, name, bindings);
    bindings.bind(state.Found, [path](const std::string& found) {
        path->setPlaceholderText(found.empty() ? QStringLiteral("not found")
                                               : toQt(found) + QStringLiteral(" (found)"));
    });
    QPushButton* browse = rows.button(state.Browse, name + QStringLiteral("Browse"));
    browse->setAccessibleName(QStringLiteral("Browse for ") + name);
    QPushButton* test = rows.button(state.Test, name + QStringLiteral("Test"));
    test->setAccessibleName(QStringLiteral("Test ") + name);
    auto* both = new QWidget(&rows);
    auto* line = new QHBoxLayout(both);
    line->setContentsMargins({});
    line->addWidget(browse);
    line->addWidget(test);
    rows.row(caption, path, both);
    auto* answer = new QLabel(&rows);
    answer->setObjectName(name + QStringLiteral("Answer"));
    answer->setWordWrap(true);
    answer->setTextFormat(Qt::PlainText);
    answer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bindings.bind(state.Answer.Caption, [answer](const std::string& text) {
        answer->setText(toQt(text));
        answer->setVisible(!text.empty());
    });
    rows.below(answer);
}

QGroupBox* appearanceFrame(ExtrasPage& page, PageRows& rows)
{
    auto* frame = new QGroupBox(QStringLiteral("Appearance"), &rows);
    auto* line = new QHBoxLayout(frame);
    for (std::size_t i = 0; i < page.Appearance.size(); ++i) {
        auto* option = new QRadioButton(frame);
        option->setObjectName(QStringLiteral("Appearance(%1)").arg(i));
        rows.bindings().optionButton(page.Appearance[i], *option);
        line->addWidget(option);
    }
    line->addStretch();
    return frame;
}

QGroupBox* settingsFrame(ExtrasPage& page, PageRows& rows)
{
    auto* frame = new QGroupBox(QStringLiteral("Folder of the settings"), &rows);
    auto* line = new QHBoxLayout(frame);
    auto* folder = new PathBox(page.SettingsFolder, QStringLiteral("SettingsFolder"), rows.bindings());
    folder->setReadOnly(true);
    folder->setAccessibleName(frame->title());
    line->addWidget(folder, 1);
    line->addWidget(rows.button(page.OpenFolder, QStringLiteral("OpenFolder")));
    line->addWidget(rows.button(page.Import, QStringLiteral("Import")));
    return frame;
}

} // namespace

QWidget* extrasPageView(ExtrasPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    rows->wide(drivesFrame(page, *rows));
    addRunner(page.Runners[0], *rows, QStringLiteral("Wine"), QStringLiteral("&Wine:"));
    addRunner(page.Runners[1], *rows, QStringLiteral("DOSBox"), QStringLiteral("DOS&Box:"));
    rows->wide(appearanceFrame(page, *rows));
    rows->wide(settingsFrame(page, *rows));
    for (std::size_t i = 0; i < page.Ticks.size(); ++i)
        rows->wide(rows->check(page.Ticks[i], QStringLiteral("Ticks(%1)").arg(i)));
    rows->end();
    return rows;
}

} // namespace tarvex
