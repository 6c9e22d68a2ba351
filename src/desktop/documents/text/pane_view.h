#pragma once

#include "desktop/bind.h"
#include "desktop/documents/text/pane_margin.h"
#include "desktop/documents/text/pane_mirror.h"
#include "documents/text/line_mark.h"
#include "documents/text/match_marks.h"
#include "documents/text/zoom.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QPainter;

namespace tarvex {

class MatchScrollBar;

/// Shows a pane and lets the user edit it. The user's edits become edits of the pane, and what the program does to the
/// pane appears once per event, by changed stretch.
class PaneView : public QPlainTextEdit, public MarginLines {
    Q_OBJECT
public:
    /// The pane outlives the view.
    explicit PaneView(Pane& pane, QWidget* parent = nullptr);

    /// Takes a key before the text sees it: one with Ctrl as "Ctrl+S", "Esc" and "F1"; any other comes without a name.
    /// False: it is the text's own. None set: all are.
    std::function<bool(std::string_view keys)> pressKey;

    /// Does what is waiting: hands over the user's edits and shows the pane as it is.
    void settle();
    /// Gives all lines from the first to the last their formats now; the view does it for those it shows.
    void formatAll();

    /// Size of the text against that of the pane's font, in per cent, within 40 and 500.
    int zoom() const { return m_zoom; }
    void setZoom(int percent);

    /// Shows these marks of the pane beside and behind its text, and the matches in the scroll bar, too. Once at most;
    /// the marks outlive the view.
    void showMarks(LineMark& error, MatchMarks& matches);
    std::optional<std::int64_t> errorLine() const override;
    MatchScrollBar* matchBar() { return m_matchBar; }
    void showLineNumbers(bool on);
    void showCurrentLine(bool on);

    std::vector<ShownLine> shownLines(const QRect& area) const override;
    void selectLineAt(int y) override;
    /// Where the selection is in sight, on the screen.
    QRect selectionPlace();

    /// Puts what was dropped before the character at `target`, or moves the view's own selection there.
    void takeDrop(const QMimeData& content, int target, bool movesOwnSelection);

signals:
    /// The pane has the keyboard now; `returned`: it only comes back from a menu, a box or another window.
    void gotFocus(bool returned);
    /// The user wrote, moved the caret or changed the selection.
    void caretMoved();
    /// The view followed a change of the pane by the program alone.
    void paneShown();
    void overwriteModeChanged(bool on);
    /// So many characters that the user wrote became "?", because the pane can't hold them.
    void charactersLost(int count);
    /// The user chose another size.
    void zoomed(int percent);
    void filesDropped(const QStringList& paths);
    /// A key was released, the left button was released, a button went down; the pane has what they did.
    void keyReleased();
    void clicked();
    void mousePressed(Qt::MouseButton button);
    /// By the right button, or by a key.
    void popUpWanted(bool byKey);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void bindPane();
    void settleLater();
    void showPane();
    bool bringUpToDate();
    bool showSelection();
    void revealSelection();
    void revealColumns(int start, int end);
    void takeSelection();
    void showFont();
    void showColours();
    void formatShown();
    void repaintLine(const PaneFormats::Changed& line);
    void placeMargin();
    void updateMargin(const QRect& changed, int scrolled);
    int currentLine() const;
    void noteCurrentLine();
    void paintMarks(const QRect& area);
    void paintMatches(QPainter& painter, const ShownLine& shown, const QRect& area);
    std::vector<float> matchPlaces() const;
    bool zoomByKey(const QKeyEvent& event);
    void zoomTo(int percent);
    void announceKey(const QKeyEvent& event);
    void announceCharacter(int code);
    void announceEdit();

    struct Selection {
        std::int64_t start = 0;
        std::int64_t length = 0;
        bool operator==(const Selection&) const = default;
    };
    Selection paneSelection() const { return {m_pane.SelStart(), m_pane.SelLength()}; }
    Selection shownSelection() const;

    Pane& m_pane;
    PaneMirror m_mirror;
    Bindings m_bindings;
    PaneMargin* m_margin;
    MatchScrollBar* m_matchBar = nullptr;
    const LineMark* m_error = nullptr;
    const MatchMarks* m_matches = nullptr;
    bool m_showsCurrentLine = false;
    int m_currentLine = 0; ///< as it was painted last
    int m_zoom = zoom::normal;
    bool m_settlesLater = false;
    bool m_showing = false;     ///< the document follows the pane just now
    bool m_userMoved = false;   ///< the view's caret is newer than the pane's
    bool m_stillChosen = false; ///< of the window's widgets, while the keyboard is elsewhere
    bool m_paneMoved = false;   ///< the other way round
    Selection m_shown;          ///< the pane's selection when the view last had it
};

} // namespace tarvex
