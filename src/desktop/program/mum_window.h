#pragma once

#include "desktop/bind.h"
#include "desktop/documents/window/editor_view.h"
#include "desktop/help/help_key.h"
#include "desktop/platform/lock_keys.h"
#include "program/program.h"

#include <QElapsedTimer>
#include <QMainWindow>

namespace tarvex {

class StatusBarView;

/// The frame window: menus, toolbar and status bar around the document window.
class MumWindow : public QMainWindow {
    Q_OBJECT
public:
    /// The program outlives the window.
    explicit MumWindow(Program& program);

    EditorView& editor() { return *m_editor; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMenuBars();
    void addShortcuts();
    void bindTitle();
    void showForm(bool on);
    void cameToTheFront();
    void uncover(const Side& side);
    void addFindBar();
    void addOutsideStrips();
    void bindLastPair();
    void reportPlace();
    bool minimisedTooLate();
    void comeBackOnceAway();

    Program& m_program;
    EditorView* m_editor;
    StatusBarView* m_status;
    LockKeys m_lockKeys;
    HelpKey m_helpKey;
    bool m_wasElsewhere = false; ///< another program had the keyboard
    QElapsedTimer m_restored;    ///< since the program brought its minimised window back
    bool m_comesBack = false;    ///< it does so once more, as soon as it is away
    bool m_exiting = false;
    Bindings m_bindings;
};

} // namespace tarvex
