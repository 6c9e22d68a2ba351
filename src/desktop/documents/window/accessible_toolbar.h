#pragma once

#include <QAccessibleWidget>
#include <QList>

class QToolButton;

namespace tarvex {

/// The toolbar as a screen reader finds it: its buttons that are there for the user, without separators.
class AccessibleToolbar : public QAccessibleWidget {
public:
    explicit AccessibleToolbar(QWidget& bar);
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QToolButton*> buttons() const;
};

} // namespace tarvex
