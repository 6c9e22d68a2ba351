#pragma once

#include "shown_state.h"
#include "traces.h"
#include "user_acts.h"
#include "window_walk.h"

#include <map>
#include <memory>
#include <set>

namespace tarvex {

/// Does with each control of each window what a user can do with it, and notes what becomes of it. Boxes that come up
/// are answered with their default button, other windows are closed.
class OperationWalk : public WindowWalk {
public:
    /// Of the controls every `parts`th is operated, from number `part` on. `tca`: with the other analyser.
    OperationWalk(std::size_t part, std::size_t parts, bool tca);

    /// The window that a command, a button or the name of a form leads to; the frame for an empty name.
    void operateWindow(const char* way);

    QStringList list;       ///< what followed on each act
    QStringList notPainted; ///< changes that the program made and the screen doesn't show
    QStringList swallowing; ///< controls that keep a key from the window that means nothing to them
    std::string seen;       ///< class of the window

protected:
    void look(QWidget& window) override;
    bool wantsAgain() override { return std::exchange(m_closed, false); }

private:
    bool isInPart(const QString& name);
    std::vector<UserAct> actsHere(QWidget& control);
    void expectPassedOn(QWidget& window, QWidget& control);
    void operate(QWidget& window, QWidget& control, const std::vector<UserAct>& acts);
    void perform(QWidget& window, const QString& name, const UserAct& act);
    void settle();
    bool answer();
    void closeOthers(const QWidget& window);
    void note(const QString& line) { m_notes.append(QStringLiteral("  ") + line); }

    std::size_t m_part;
    std::size_t m_parts;
    Traces m_traces{m_desktop};
    QTimer m_answers;
    QWidget* m_operated = nullptr; ///< whose control is being used
    bool m_closed = false;         ///< a window was closed by one of its controls: others may be left
    bool m_closing = false;        ///< other windows, which may ask about what is in them
    std::set<QString> m_done;
    std::map<QString, std::set<QString>> m_ofKind; ///< names of the controls, by kind
    std::map<QString, std::size_t> m_numbers;      ///< of the controls, by name
    QStringList m_notes;                           ///< of the act
    std::unique_ptr<ShownState> m_shown;
};

} // namespace tarvex
