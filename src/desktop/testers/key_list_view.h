#pragma once

#include "desktop/bind.h"
#include "desktop/pane_colours.h"
#include "testers/coloured_list.h"

#include <QPlainTextEdit>

namespace tarvex {

/// Shows a coloured list, in the colours of panes; the newest line is in sight. The list outlives the view.
class KeyListView : public QPlainTextEdit {
    Q_OBJECT
public:
    KeyListView(ColouredList& list, const char* name, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showAll();
    void append(const ColouredList::Line& line);

    ColouredList& m_list;
    PaneColours m_colours;
    Bindings m_bindings;
};

} // namespace tarvex
