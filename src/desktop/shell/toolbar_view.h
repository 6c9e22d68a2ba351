#pragma once

#include "desktop/bind.h"
#include "program/program.h"

#include <QToolBar>

namespace tarvex {

/// Toolbar1. A slot is shown once its command is there.
class ToolbarView : public QToolBar {
public:
    explicit ToolbarView(Program& program, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Slot;
    static const Slot table[];
    static bool isThere(Program& program, const Slot& slot);
    MenuItem* itemOf(const Slot& slot) const;
    void addSlot(const Slot& slot);
    void showSlot(const Slot& slot, QAction& action);
    void press(const Slot& slot);

    Program& m_program;
    Bindings m_bindings;
};

} // namespace tarvex
