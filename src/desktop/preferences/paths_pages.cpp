#include "desktop/preferences/page_rows.h"
#include "desktop/preferences/pages.h"
#include "desktop/preferences/path_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tarvex {

QWidget* fileLocationsPageView(FileLocationsPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    auto* loader = new QComboBox(rows);
    loader->setObjectName(QStringLiteral("Text1"));
    loader->setEditable(true);
    loader->setInsertPolicy(QComboBox::NoInsert);
    loader->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    loader->setMinimumContentsLength(12);
    bindings.comboBox(page.Text1, *loader);
    bindings.bind(page.Text1.Text, [loader](const std::string& path) { loader->setToolTip(toQt(path)); });
    QPushButton* browse = rows->button(page.Command1, QStringLiteral("Command1"));
    browse->setAccessibleName(QStringLiteral("Browse for the loader"));
    QLabel* caption = rows->row({}, loader, browse);
    bindings.bind(page.LoaderLabel.Caption, [caption, loader](const std::string& text) {
        caption->setText(toQt(text) + QLatin1Char(':'));
        loader->setAccessibleName(toQt(text));
    });
    rows->pathRow(QStringLiteral("&Thrustmaster programs:"), page.Text2, QStringLiteral("Text2"), page.Command2,
                  QStringLiteral("Command2"));
    rows->pathRow(QStringLiteral("CTF&J:"), page.Text15, QStringLiteral("Text15"), page.Text15Browse,
                  QStringLiteral("Text15Browse"));
    rows->pathRow(QStringLiteral("Control Centre &batch file:"), page.Text10, QStringLiteral("Text10"),
                  page.Text10Browse, QStringLiteral("Text10Browse"));
    rows->gap();
    rows->comboRow(QStringLiteral("Joystic&k:"), page.ComboJoystick, QStringLiteral("ComboJoystick"));
    rows->comboRow(QStringLiteral("Th&rottle:"), page.ComboThrottle, QStringLiteral("ComboThrottle"));
    rows->comboRow(QStringLiteral("R&udders:"), page.ComboRudders, QStringLiteral("ComboRudders"));
    rows->end();
    return rows;
}

QWidget* appsPageView(AppsPage& page, Bindings& bindings)
{
    auto* rows = new PageRows(bindings);
    rows->pathRow(QStringLiteral("&Image file:"), page.Text5, QStringLiteral("Text5"), page.Text5Browse,
                  QStringLiteral("Text5Browse"));
    rows->pathRow(QStringLiteral("&Text file:"), page.Text6, QStringLiteral("Text6"), page.Text6Browse,
                  QStringLiteral("Text6Browse"));
    rows->gap();
    auto* frame = new QGroupBox(QStringLiteral("Your own programs on the Apps menu"), rows);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(new QLabel(QStringLiteral("Name"), frame), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Program"), frame), 0, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 2);
    for (std::size_t i = 0; i < AppsPage::programs; ++i) {
        const int row = static_cast<int>(i) + 1;
        const auto named = [i](const char* name) { return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i); };
        const auto about = [row](const char* what) {
            return QStringLiteral("%1 of program %2").arg(QLatin1String(what)).arg(row);
        };
        auto* name = new LineBox(page.CustomAppNameText[i], named("CustomAppNameText"), bindings);
        name->setAccessibleName(about("Name"));
        auto* path = new PathBox(page.CustomAppPathText[i], named("CustomAppPathText"), bindings);
        path->setAccessibleName(about("Path"));
        QPushButton* browse = rows->button(page.CustomAppPathBrowse[i], named("CustomAppPathBrowse"));
        browse->setAccessibleName(QStringLiteral("Browse for program %1").arg(row));
        QCheckBox* use = rows->check(page.CustomAppPathUse[i], named("CustomAppPathUse"));
        use->setAccessibleName(QStringLiteral("Show program %1 on the menu").arg(row));
        grid->addWidget(name, row, 0);
        grid->addWidget(path, row, 1);
        grid->addWidget(browse, row, 2);
        grid->addWidget(use, row, 3);
    }
    rows->wide(frame);
    rows->end();
    return rows;
}

} // namespace tarvex
