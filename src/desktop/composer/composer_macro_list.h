#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"
#include "desktop/documents/window/check_list_model.h"

#include <QListView>

namespace tarvex {

/// List1 of the Composer: of its lists the one that is on show, whose events it reports by its index.
class ComposerMacroList : public QListView {
    Q_OBJECT
public:
    ComposerMacroList(InsertOptions& window, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    void takeLists();
    void showList();

    InsertOptions& m_window;
    CheckListModel m_model;
    std::size_t m_list = 0; ///< the one shown
    Bindings m_bindings;
    Bindings m_listBindings; ///< of all lists
};

} // namespace tarvex
