#pragma once

#include "desktop/bind.h"
#include "desktop/documents/window/check_list_model.h"
#include "documents/pair/editor.h"

#include <QListView>

#include <cstddef>

namespace tarvex {

/// List1: of all the lists of macros the one that is visible, whose events it reports by its index.
class MacroListView : public QListView {
public:
    explicit MacroListView(Editor& editor, QWidget* frame);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    void takeLists();
    void visibilityChanged(std::size_t list);
    void showList(std::size_t list);
    void showCurrent();
    void applyFilter();
    bool writesIntoFilter(const QKeyEvent& event);
    void showTip(const QHelpEvent& event);
    bool isOnTick(const QPoint& position) const;

    Editor& m_editor;
    CheckListModel m_model;
    std::size_t m_list = 0; ///< the one shown
    bool m_showing = false; ///< the view follows the list just now
    bool m_dragged = false; ///< the mouse move in hand began a drag
    Bindings m_bindings;
    Bindings m_listBindings;  ///< of all lists
    Bindings m_shownBindings; ///< of the one shown
};

} // namespace tarvex
