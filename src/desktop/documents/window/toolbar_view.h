#pragma once

#include "desktop/bind.h"
#include "desktop/documents/window/toolbar_layout.h"
#include "documents/pair/editor.h"

#include <QWidget>

#include <map>

class QAction;
class QToolButton;

namespace tarvex {

struct ToolbarButton;

/// Toolbar1: all its slots by their numbers, and Picture1 in the place of its own. Slot 3 is the action "Toolbar1_3".
class ToolbarView : public QWidget {
public:
    explicit ToolbarView(Editor& editor, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Shown {
        QAction* action = nullptr; ///< none of a separator
        QWidget* widget = nullptr;
        QString icon;
    };
    void addSeparator(int number);
    void addSlot(const ToolbarButton& slot);
    QToolButton* makeButton(QAction& action);
    void followSlot(const ToolbarButton& slot, QAction& action);
    void showSlot(const ToolbarButton& slot);
    void showPicture(const ToolbarButton& slot);
    void showAll();
    void scaleIcons();
    void press(const ToolbarButton& slot);
    void hover(const QMouseEvent& event, QPointF at);
    void reportPicture();
    void reportPlaces();
    void popUpExtension();

    Editor& m_editor;
    QToolButton* m_extension;
    ToolbarLayout* m_layout;
    std::map<int, Shown> m_slots;
    Bindings m_bindings;
};

} // namespace tarvex
