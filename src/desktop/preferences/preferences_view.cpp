#include "desktop/preferences/preferences_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/platform/qt_dialogues.h"
#include "desktop/preferences/files_home_view.h"
#include "desktop/preferences/import_view.h"
#include "desktop/preferences/pages.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace tarvex {

namespace {

/// Size of a dialogue around the tabs at which all tabs are seen and no page scrolls; `hint` is its own idea.
QSize roomyDialogue(QTabWidget& tabs, const QSize& hint)
{
    QSize pages;
    for (int i = 0; i < tabs.count(); ++i) {
        const auto* area = static_cast<const QScrollArea*>(tabs.widget(i));
        pages = pages.expandedTo(area->widget()->sizeHint());
    }
    tabs.setUsesScrollButtons(false); // so that the row of tabs asks for all of its width
    const QSize row = tabs.tabBar()->sizeHint();
    tabs.setUsesScrollButtons(true);
    const int frame = tabs.fontMetrics().height() * 2; // of tabs and pages
    const QSize others = hint - tabs.sizeHint();
    const QSize around(std::max(pages.width(), row.width()) + frame, pages.height() + row.height() + frame);
    return hint.expandedTo(others + around);
}

/// In upper case; null: none.
QChar accessKey(const QString& caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

QSet<QChar> accessKeysOf(const QWidget& page)
{
    QSet<QChar> keys;
    for (const auto* button : page.findChildren<QAbstractButton*>()) keys.insert(accessKey(button->text()));
    for (const auto* label : page.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) keys.insert(accessKey(label->text()));
    }
    for (const auto* tabs : page.findChildren<QTabBar*>()) {
        for (int i = 0; i < tabs->count(); ++i) keys.insert(accessKey(tabs->tabText(i)));
    }
    keys.remove(QChar());
    return keys;
}

} // namespace

PreferencesView::PreferencesView(Preferences& preferences, QWidget* parent)
    : FormWindow(preferences.Form, QStringLiteral("Preferences"), parent), m_preferences(preferences)
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTab1"));
    addPage(*tabs, fileLocationsPageView(preferences.fileLocationsPage, m_bindings));
    addPage(*tabs, coloursPageView(preferences.coloursPage, m_bindings));
    addPage(*tabs, appsPageView(preferences.appsPage, m_bindings));
    addPage(*tabs, favouritesPageView(preferences.favouritesPage, m_bindings));
    addPage(*tabs, gamesPageView(preferences.gamesPage, m_bindings));
    addPage(*tabs, savingPageView(preferences.savingPage, m_bindings));
    addPage(*tabs, miscellaneousPageView(preferences.miscellaneousPage, m_bindings));
    addPage(*tabs, winLoadPageView(preferences.winLoadPage, m_bindings));
    addPage(*tabs, extrasPageView(preferences.extrasPage, m_bindings));
    m_bindings.pages(preferences.SSTab1, *tabs);
    connect(tabs, &QTabWidget::currentChanged, this, [this, tabs] { clearAccessKeys(*tabs); });
    m_bindings.bind(preferences.SSTab1.Tab, [this, tabs](int) { clearAccessKeys(*tabs); });

    auto* column = new QVBoxLayout(this);
    column->addWidget(tabs);
    column->addWidget(closingButtons(*this,
                                     {{QDialogButtonBox::Ok, preferences.Command3, QStringLiteral("Command3")},
                                      {QDialogButtonBox::Help, preferences.Command6, QStringLiteral("Command6")}},
                                     m_bindings));
    ensurePolished();
    resize(roomyDialogue(*tabs, sizeHint()).boundedTo(screen()->availableSize() * 9 / 10));
}

/// The first box of the page can take the keyboard only now that it is there.
void PreferencesView::showEvent(QShowEvent* event)
{
    FormWindow::showEvent(event);
    PREFS_Form_Activate(m_preferences);
}

/// The controls of the page that is shown have their access keys to themselves: a tab of the same one has none
/// meanwhile. With two of one key, neither would do what it says at the first press.
void PreferencesView::clearAccessKeys(QTabWidget& tabs)
{
    const QSet<QChar> taken = accessKeysOf(*tabs.currentWidget());
    for (int i = 0; i < tabs.count(); ++i) {
        QString caption = toQt(m_preferences.SSTab1.Pages(i).Caption.get());
        const QChar key = accessKey(caption);
        if (!key.isNull() && taken.contains(key)) caption.remove(QLatin1Char('&'));
        tabs.setTabText(i, caption);
    }
}

void PreferencesView::addPage(QTabWidget& tabs, QWidget* page)
{
    auto* area = new QScrollArea(&tabs);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    tabs.addTab(area, {});
}

void addPreferencesForm(QtDialogues& dialogues, Preferences& preferences, QWidget* parent)
{
    dialogues.addForm("Preferences", [&preferences, parent] { PreferencesView(preferences, parent).showModally(); });
    dialogues.addForm("Import", [&form = preferences.importForm, parent] {
        QWidget* before = QApplication::activeModalWidget();
        ImportView(form, before != nullptr ? before : parent).showModally();
    });
    dialogues.addForm("FilesHome",
                      [&form = preferences.filesHome, parent] { FilesHomeView(form, parent).showModally(); });
}

} // namespace tarvex
