#include "pane_picture.h"

#include "desktop/text.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <QWidget>

namespace tarvex {

namespace {

constexpr int margin = 4;

QFont fontOf(const std::string& name, float size, bool bold, int zoom)
{
    QFont font(toQt(name));
    font.setPointSizeF(static_cast<double>(size) * zoom / 100);
    font.setBold(bold);
    font.setKerning(false);
    return font;
}

QTextCharFormat lookOf(const CharacterFormat& format, int zoom)
{
    QTextCharFormat look;
    look.setFont(fontOf(format.fontName, format.fontSize, format.bold, zoom));
    look.setFontItalic(format.italic);
    look.setFontUnderline(format.underline);
    look.setForeground(toQt(format.colour));
    return look;
}

/// The looks of a line's characters, one range each.
QList<QTextLayout::FormatRange> looksOf(const Pane& pane, std::int64_t start, int length, int zoom)
{
    QList<QTextLayout::FormatRange> looks;
    for (int column = 0; column < length; ++column) {
        const auto position = static_cast<std::size_t>(start + column);
        const QTextCharFormat look = lookOf(pane.formatAt(position), zoom);
        if (looks.isEmpty() || looks.last().format != look)
            looks.append({column, 1, look});
        else
            ++looks.last().length;
    }
    return looks;
}

QTextCharFormat selectedLook(bool active)
{
    const QPalette palette = QApplication::palette();
    QTextCharFormat look;
    look.setBackground(active ? palette.color(QPalette::Active, QPalette::Highlight) : QColor(0x9B, 0xC1, 0xEE));
    look.setForeground(active ? palette.color(QPalette::Active, QPalette::HighlightedText) : QColor(Qt::black));
    return look;
}

/// The characters of the line that are selected; the line end is drawn as a piece of background behind them.
QList<QTextLayout::FormatRange> selectionOf(const Pane& pane, std::int64_t start, int length, bool active)
{
    const auto from = std::max<std::int64_t>(pane.SelStart() - start, 0);
    const auto to = std::min<std::int64_t>(pane.SelStart() + pane.SelLength() - start, length);
    if (from >= to) return {};
    return {{static_cast<int>(from), static_cast<int>(to - from), selectedLook(active)}};
}

} // namespace

QImage PanePicture::drawn(QSize size) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(toQt(pane.BackColor.get()));
    QPainter painter(&image);
    painter.setPen(Qt::black);
    const PaneFont& font = pane.Font();
    const QFont own = fontOf(font.name, font.size, font.bold, zoom);
    double top = firstLine == 0 ? margin : 0;
    for (std::int64_t line = firstLine; line < pane.lineCount() && top < size.height(); ++line) {
        const std::int64_t start = pane.lineStart(line);
        const bool last = line + 1 == pane.lineCount();
        const std::int64_t end = last ? static_cast<std::int64_t>(pane.TextLength()) : pane.lineStart(line + 1) - 2;
        const int length = static_cast<int>(end - start);
        const std::string text = pane.Text().substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
        QTextLayout layout(QString::fromLatin1(text.data(), length), own);
        layout.setFormats(looksOf(pane, start, length, zoom));
        layout.beginLayout();
        QTextLine row = layout.createLine();
        row.setLeadingIncluded(true);
        row.setPosition({0, 0});
        layout.endLayout();
        layout.draw(&painter, {margin, top}, selectionOf(pane, start, length, active));
        top += row.height();
    }
    return image;
}

QImage painted(QWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

std::string difference(const QImage& shown, const QImage& wanted)
{
    if (shown.size() != wanted.size()) return "another size";
    int differing = 0;
    QPoint first;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) == wanted.pixel(x, y)) continue;
            if (differing++ == 0) first = {x, y};
        }
    }
    if (differing == 0) return {};
    return std::to_string(differing) + " pixels differ, the first at " + std::to_string(first.x()) + ", " +
           std::to_string(first.y()) + ": " + shown.pixelColor(first).name().toStdString() + " for " +
           wanted.pixelColor(first).name().toStdString();
}

} // namespace tarvex
