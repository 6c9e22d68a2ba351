#pragma once

#include "desktop/bind.h"
#include "desktop/documents/text/pane_view.h"
#include "desktop/documents/window/document_tabs.h"
#include "desktop/documents/window/macro_frame_view.h"
#include "documents/pair/editor.h"

#include <QWidget>

#include <array>

namespace tarvex {

/// The document window: the tabs, the two panes and the frame with the macros, each where the editor's layout has it.
class EditorView : public QWidget {
    Q_OBJECT
public:
    explicit EditorView(Editor& editor, QWidget* parent = nullptr);

    PaneView& pane(const Side& side) { return side.tab == 1 ? *m_joystick : *m_macro; }
    DocumentTabs& tabs() { return *m_tabs; }
    /// Puts a widget at the foot of the pane in front whenever `visible` says so. It becomes the view's child.
    void setFoot(QWidget& foot, Property<bool>& visible);
    /// Puts a widget above the pane of a document whenever `visible` says so. It becomes the view's child.
    void setHead(Side& side, QWidget& head, Property<bool>& visible);

signals:
    void filesDropped(const QStringList& paths);
    void overwriteModeChanged(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addTabs();
    void addPane(Side& side, PaneView& view);
    void bindPlaces();
    void bindLook();
    void placePane(const Side& side);
    QWidget*& head(const Side& side) { return m_heads[side.tab == 1 ? 0 : 1]; }
    QRect belowHead(const Side& side, const QRect& room);
    void placePanes();
    void addActiveMark();
    void reportSize();
    int headerShift() const;
    void placeStrip();
    void placeFrame();

    Editor& m_editor;
    DocumentTabs* m_tabs;
    PaneView* m_joystick;
    PaneView* m_macro;
    MacroFrameView* m_frame;
    QWidget* m_foot = nullptr;
    QWidget* m_activeMark; ///< a line over the one of two panes that is in front
    bool m_footVisible = false;
    std::array<QWidget*, 2> m_heads{}; ///< above the panes
    Bindings m_bindings;
};

} // namespace tarvex
