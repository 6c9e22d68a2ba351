#pragma once

#include "desktop/bind.h"
#include "documents/find/find_bar.h"

#include <QWidget>

class QHBoxLayout;
class QLineEdit;

namespace tarvex {

/// The find bar. Its owner decides where it stands and shows it.
class FindBarView : public QWidget {
    Q_OBJECT
public:
    /// The bar outlives the view.
    explicit FindBarView(FindBar& bar, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addText(QHBoxLayout& row);
    void addOption(QHBoxLayout& row, CheckBox& state, const char* name);
    void addButton(QHBoxLayout& row, Button& state, const char* name, const char* icon);
    bool takeKey(const QKeyEvent& event);

    FindBar& m_bar;
    QLineEdit* m_text;
    Bindings m_bindings;
};

} // namespace tarvex
