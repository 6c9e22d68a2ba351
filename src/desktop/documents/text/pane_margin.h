#pragma once

#include <QPlainTextEdit>

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvex {

/// A line of a pane, from 0, where it is in the viewport.
struct ShownLine {
    int number;
    int top;
    int height;
    bool isCurrent;
};

/// What the margin shows and does.
class MarginLines {
public:
    virtual ~MarginLines() = default;
    /// Those that the area of the viewport touches, from top to bottom.
    virtual std::vector<ShownLine> shownLines(const QRect& area) const = 0;
    virtual std::optional<std::int64_t> errorLine() const = 0;
    /// Selects the line at a height of the viewport, with its end.
    virtual void selectLineAt(int y) = 0;
};

struct MarginColours {
    QColor ground;
    QColor number;
    QColor current; ///< the number of the line that the caret is in
};
/// Those beside text on a ground that the user chose.
MarginColours marginColours(const QColor& ground);

/// The strip on the left of a pane's text: the numbers of its lines, and a mark beside the line with an error. A click
/// selects the line.
class PaneMargin : public QWidget {
    Q_OBJECT
public:
    /// `lines` is what is beside the margin in the view, its parent.
    PaneMargin(QPlainTextEdit& view, MarginLines& lines);

    /// Without numbers the strip is there only while a line has an error.
    void showNumbers(bool on);
    /// The strip's width for the text that there is; 0: nothing is to be shown.
    int wantedWidth() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QPlainTextEdit& m_view;
    MarginLines& m_lines;
    bool m_numbers = false;
};

} // namespace tarvex
