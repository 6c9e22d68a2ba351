#include "window_walk.h"

#include "documents/files/outside_notice.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTabWidget>

#include <cstdlib>
#include <cxxabi.h>
#include <map>
#include <typeindex>

namespace tarvex {

namespace {

/// Commands that end the program, or undo the choice of the walk.
const QStringList notWalked{"mnuFileExit", "mnuAppearanceSystem", "mnuAppearanceLight", "mnuAppearanceDark",
                            "mnuAppearanceContrast"};

/// Forms that only other forms show.
constexpr const char* withoutCommand[] = {"Differences", "FilesHome", "Import", "SelectPictureForm"};

} // namespace

std::string className(const QWidget& window)
{
    static std::map<std::type_index, std::string> known;
    std::string& result = known[typeid(window)];
    if (!result.empty()) return result;
    char* name = abi::__cxa_demangle(typeid(window).name(), nullptr, nullptr, nullptr);
    result = name != nullptr ? name : typeid(window).name();
    std::free(name); // NOLINT(cppcoreguidelines-no-malloc): that is how it is allocated
    return result;
}

WindowWalk::WindowWalk()
{
    QObject::connect(&m_user, &QTimer::timeout, &m_user, [this] { lookAtModal(); });
}

void WindowWalk::run()
{
    start();
    look(*m_desktop.window);
    for (const QString& name : commands()) trigger(name);
    m_desktop.program->shared.settings.UseTCA = 1;
    trigger(QStringLiteral("mnuAppsJoyAnalyser"));
    changeOutside();
    for (const char* form : withoutCommand) showForm(form);
    m_desktop.program->outsideNotices.joystick.Reload.Click();
    clickButtons();
}

/// Another program has changed both files, and the window says so.
void WindowWalk::changeOutside()
{
    m_desktop.openPair();
    m_command = "a change by another program";
    m_desktop.program->editor.TabStrip1.Select(1); // which tab the last command left doesn't matter
    for (const Side* side : {&m_desktop.program->editor.joystick, &m_desktop.program->editor.macro})
        m_desktop.machine.files.addFile(side->FilePath, "Rem theirs\r\n");
    lookForOutsideChanges(m_desktop.program->outsideNotices);
    QApplication::processEvents();
    look(*m_desktop.window);
}

void WindowWalk::clickButtons()
{
    QList<QPointer<QAbstractButton>> buttons; // some close the window that others are in
    for (QAbstractButton* button : m_desktop.window->findChildren<QAbstractButton*>()) buttons.append(button);
    for (const QPointer<QAbstractButton>& button : buttons) {
        if (!button) continue;
        m_command = fromQt(button->objectName());
        if (button->isVisible()) button->click();
        QApplication::processEvents();
        lookAtOpenWindows();
    }
}

QStringList WindowWalk::commands() const
{
    QStringList names;
    for (const QAction* action : m_desktop.window->findChildren<QAction*>()) {
        const bool isCommand = !action->objectName().isEmpty() && action->menu() == nullptr;
        if (isCommand && !notWalked.contains(action->objectName())) names.append(action->objectName());
    }
    return names;
}

void WindowWalk::trigger(const QString& name)
{
    m_command = fromQt(name);
    do {
        m_desktop.openPair();
        if (auto* action = m_desktop.window->findChild<QAction*>(name)) action->trigger();
        if (auto* button = m_desktop.window->findChild<QAbstractButton*>(name)) button->click();
        QApplication::processEvents();
        lookAtOpenWindows();
    } while (wantsAgain());
}

void WindowWalk::showForm(const char* form)
{
    m_command = form;
    do m_desktop.dialogues.showModal(form);
    while (wantsAgain());
}

void WindowWalk::lookAtAllPages(QWidget& window)
{
    look(window);
    for (QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int page = 0; page < tabs->count() && window.isVisible(); ++page) {
            tabs->setCurrentIndex(page);
            QCoreApplication::sendPostedEvents();
            look(window);
        }
    }
    for (QStackedWidget* pages : window.findChildren<QStackedWidget*>()) {
        if (qobject_cast<QTabWidget*>(pages->parentWidget())) continue; // those of the tabs
        const int before = pages->currentIndex();
        for (int page = 0; page < pages->count() && window.isVisible(); ++page) {
            pages->setCurrentIndex(page);
            QCoreApplication::sendPostedEvents();
            look(window);
        }
        pages->setCurrentIndex(before);
    }
}

void WindowWalk::lookAtModal()
{
    if (m_looking) return;
    const QScopedValueRollback<bool> looking(m_looking, true);
    if (QWidget* popUp = QApplication::activePopupWidget()) {
        if (qobject_cast<QMenu*>(popUp) == nullptr) look(*popUp);
        popUp->close();
    } else if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        lookAtAllPages(*modal);
        if (modal->isVisible()) modal->reject();
    }
}

void WindowWalk::lookAtOpenWindows()
{
    look(*m_desktop.window);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window == m_desktop.window.get() || !window->isWindow()) continue;
        if (window->windowType() != Qt::Dialog && window->windowType() != Qt::Window) continue;
        lookAtAllPages(*window);
        if (window->isVisible()) window->close();
    }
}

} // namespace tarvex
