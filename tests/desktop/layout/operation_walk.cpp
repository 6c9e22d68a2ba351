#include "operation_walk.h"

#include "plain_widgets.h"
#include "widget_notes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTest>

namespace tarvex {

namespace {

bool isOfProgram(const QWidget& window) { return className(window).starts_with("tarvex::"); }

QString entriesOf(const QMenu& menu)
{
    QStringList entries;
    for (const QAction* action : menu.actions()) {
        if (!action->isVisible()) continue;
        const QString text = action->isSeparator() ? QStringLiteral("----") : action->text().section(u'\t', 0, 0);
        entries.append((action->isChecked() ? QStringLiteral("[x] ") : QString()) +
                       (action->isEnabled() ? text : u'(' + text + u')'));
    }
    return entries.join(u" | ");
}

QString noteOn(const QMessageBox& box)
{
    QStringList buttons;
    for (const QAbstractButton* button : box.buttons()) buttons.append(button->text());
    return QStringLiteral("asks %1 %2 [%3]")
        .arg(quoted(box.windowTitle()), quoted(box.text()), buttons.join(QStringLiteral("] [")));
}

QString noteOn(const QFileDialog& dialogue)
{
    return QStringLiteral("asks for a file %1 to %2, %3")
        .arg(quoted(dialogue.windowTitle()), dialogue.acceptMode() == QFileDialog::AcceptSave ? "save" : "open",
             dialogue.nameFilters().join(u" / "));
}

/// Clockworks of the program that do something a moment after an act: what they do is there at once, and not at some
/// later act. Slow ones and those that never end aren't waited for.
bool runClockworks()
{
    constexpr int moment = 1000; // milliseconds
    bool hasRun = false;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        for (QTimer* timer : window->findChildren<QTimer*>()) {
            const bool isOurs = timer->objectName() == QLatin1String(tickName) || timer->isSingleShot();
            if (!timer->isActive() || !isOurs || timer->interval() > moment || !isOfProgram(*window)) continue;
            QTimerEvent event(timer->timerId());
            QApplication::sendEvent(timer, &event);
            hasRun = true;
        }
    }
    return hasRun;
}

/// Waits for a key to come to a widget.
class KeyFilter : public QObject {
public:
    explicit KeyFilter(Qt::Key key) : m_key(key) {}
    bool hasCome = false;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == m_key) hasCome = true;
        return false;
    }

private:
    Qt::Key m_key;
};

} // namespace

OperationWalk::OperationWalk(std::size_t part, std::size_t parts, bool tca) : m_part(part), m_parts(parts)
{
    m_desktop.program->shared.settings.UseTCA = tca ? 1 : 0;
    m_desktop.appearance->choose(Appearance::Theme::Light);
    QApplication::processEvents();
    QObject::connect(&m_answers, &QTimer::timeout, &m_answers, [this] { answer(); });
}

void OperationWalk::operateWindow(const char* way)
{
    const QString name = QLatin1String(way);
    start();
    if (name.isEmpty())
        look(*m_desktop.window);
    else if (m_desktop.window->findChild<QObject*>(name) != nullptr)
        trigger(name);
    else
        showForm(way);
}

void OperationWalk::look(QWidget& window)
{
    if (auto* box = qobject_cast<QMessageBox*>(&window)) { // about what earlier acts have left
        QAbstractButton* no = box->button(QMessageBox::No);
        if (QAbstractButton* chosen = no != nullptr ? no : box->defaultButton()) chosen->click();
    }
    if (!isOfProgram(window) || m_operated != nullptr || !window.isVisible()) return;
    const bool isFrame = &window == m_desktop.window.get();
    if (isFrame && !command().empty() && command() != "the start") return;
    if (seen.empty()) seen = className(window);
    if (seen != className(window)) return;
    const std::size_t doneBefore = m_done.size();
    const QScopedValueRollback<bool> looking(m_looking, true);
    const QScopedValueRollback<QWidget*> operated(m_operated, &window);
    m_desktop.window->setUpdatesEnabled(isFrame); // painting it after each act takes longer than all the rest
    m_answers.start(0);
    settle();
    m_shown = std::make_unique<ShownState>(window);
    m_traces.takeNew();
    QList<QPointer<QWidget>> controls;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->window() == &window && canBeOperated(*control)) controls.append(control);
    for (const QPointer<QWidget>& control : controls)
        if (control && window.isVisible() && isInPart(shownName(*control))) {
            expectPassedOn(window, *control);
            operate(window, *control, actsHere(*control));
        }
    if (window.isVisible() && !isFrame && isInPart(QStringLiteral("window")))
        operate(window, window, actsOnWindow(window));
    m_answers.stop();
    m_desktop.window->setUpdatesEnabled(true);
    if (!window.isVisible() && m_done.size() > doneBefore) m_closed = true;
    m_shown.reset();
}

bool OperationWalk::isInPart(const QString& name)
{
    const auto [place, isNew] = m_numbers.try_emplace(name, m_numbers.size());
    return place->second % m_parts == m_part;
}

/// Of many controls of one kind some are tried wholly; the first act shows what the others are for.
std::vector<UserAct> OperationWalk::actsHere(QWidget& control)
{
    constexpr int triedWholly = 2;
    std::vector<UserAct> acts = actsOn(control);
    if (acts.empty() || qobject_cast<QAbstractItemView*>(&control) != nullptr) return acts;
    std::set<QString>& names = m_ofKind[kindOf(control)];
    names.insert(shownName(control));
    if (names.size() > triedWholly) acts.resize(1);
    return acts;
}

/// Esc, shortcuts and F1 work from every control only if it leaves alone what it doesn't need.
void OperationWalk::expectPassedOn(QWidget& window, QWidget& control)
{
    if (control.focusPolicy() == Qt::NoFocus) return;
    constexpr Qt::Key noKeyOfTheProgram = Qt::Key_F31;
    KeyFilter filter(noKeyOfTheProgram);
    window.installEventFilter(&filter);
    QTest::keyClick(&control, noKeyOfTheProgram);
    if (!filter.hasCome) swallowing.append(shownName(control));
}

void OperationWalk::operate(QWidget& window, QWidget& control, const std::vector<UserAct>& acts)
{
    const QPointer<QWidget> guard(&control);
    const QString name = &control == &window ? QStringLiteral("window") : shownName(control);
    for (const UserAct& act : acts) {
        if (!guard || !window.isVisible() || (&control != &window && !canBeOperated(control))) return;
        const QString all = name + u' ' + act.name;
        if (m_done.insert(all).second) perform(window, all, act);
    }
}

void OperationWalk::perform(QWidget& window, const QString& name, const UserAct& act)
{
    m_notes.clear();
    act.run();
    settle();
    closeOthers(window);
    if (window.isVisible()) {
        auto shown = std::make_unique<ShownState>(window);
        for (const QString& line : shown->changesSince(*m_shown)) note(line);
        for (const QString& widget : shown->notPaintedSince(*m_shown))
            notPainted.append(name + QStringLiteral(": ") + widget);
        m_shown = std::move(shown);
    } else {
        note(QStringLiteral("closes"));
    }
    for (const QString& line : m_traces.takeNew()) note(line);
    list.append(name + (m_notes.isEmpty() ? QStringLiteral(": nothing") : QString()));
    list += m_notes;
}

/// Until nothing is left to do in the next moment.
void OperationWalk::settle()
{
    constexpr int mostTurns = 12;
    for (int turn = 0; turn < mostTurns; ++turn) {
        QApplication::processEvents();
        const bool wasAnswered = answer();
        if (!runClockworks() && !wasAnswered) break;
    }
    QApplication::processEvents(); // what the last turn has left to paint
}

/// Answers what came up; whether there was something.
bool OperationWalk::answer()
{
    if (QWidget* popUp = QApplication::activePopupWidget()) {
        if (auto* menu = qobject_cast<QMenu*>(popUp)) note(QStringLiteral("menu ") + entriesOf(*menu));
        popUp->close();
        return true;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == m_operated) return false;
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        note(noteOn(*box));
        QAbstractButton* no = m_closing ? box->button(QMessageBox::No) : nullptr;
        if (QAbstractButton* chosen = no != nullptr ? no : box->defaultButton())
            chosen->click();
        else
            box->reject();
        return true;
    }
    if (const auto* dialogue = qobject_cast<QFileDialog*>(modal))
        note(noteOn(*dialogue));
    else
        note(QStringLiteral("opens %1 %2").arg(kindOf(*modal), quoted(modal->windowTitle())));
    if (auto* dialogue = qobject_cast<QDialog*>(modal))
        dialogue->reject();
    else
        modal->close();
    return true;
}

/// Windows that the act has opened.
void OperationWalk::closeOthers(const QWidget& window)
{
    const QScopedValueRollback<bool> closing(m_closing, true);
    for (QWidget* other : QApplication::topLevelWidgets()) {
        const bool isWindow = other->windowType() == Qt::Dialog || other->windowType() == Qt::Window;
        if (!isWindow || !other->isVisible() || other == &window || other == m_desktop.window.get()) continue;
        note(QStringLiteral("opens %1 %2").arg(kindOf(*other), quoted(other->windowTitle())));
        other->close();
        QApplication::processEvents();
    }
}

} // namespace tarvex
