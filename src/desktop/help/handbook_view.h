#pragma once

#include "desktop/tool_form_window.h"
#include "help/handbook.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QToolButton;
class QTreeWidget;

namespace tarvex {

class HandbookPage;

/// Window of the handbook.
class HandbookView : public ToolFormWindow {
    Q_OBJECT
public:
    HandbookView(Handbook& handbook, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* buttonRow();
    QWidget* findBar();
    QWidget* waysIn();
    QWidget* indexWay();
    QWidget* searchWay();
    QToolButton* button(Button& state, const char* name, const QKeySequence& keys, Qt::ArrowType arrow);
    void addShortcuts();
    void fillContents();
    void fillWords();
    void fillHits();
    void markInContents();
    void find(bool backwards, bool fromMarked);
    void showFindBar(bool on);
    void comeBeforeModalWindow();

    Handbook& m_handbook;
    HandbookPage* m_page;
    QTreeWidget* m_contents;
    QListWidget* m_words = nullptr;
    QListWidget* m_hits = nullptr;
    QWidget* m_findBar = nullptr;
    QLineEdit* m_findText = nullptr;
    QLabel* m_findResult = nullptr;
};

} // namespace tarvex
