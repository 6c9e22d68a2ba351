#pragma once

#include "desktop/bind.h"
#include "testers/coloured_list.h"

#include <QPlainTextEdit>

namespace tarvex {

/// Shows a coloured list; the newest line is in sight.
class KeyListView : public QPlainTextEdit {
    Q_OBJECT
public:
    KeyListView(ColouredList& list, const char* name, QWidget* parent);

    QSize sizeHint() const override;

private:
    void append(const ColouredList::Line& line);
    Bindings m_bindings;
};

} // namespace tarvex
