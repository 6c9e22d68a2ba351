#pragma once

#include "desktop/documents/text/pane_text.h"
#include "desktop/documents/text/pane_view.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tarvex {

inline constexpr Colour red = 0x0000FF;
inline constexpr Colour blue = 0xFF0000;

/// A pane in a window, as large as a screen has room for.
struct ShownPane {
    Pane pane;
    PaneView view{pane};
    int changes = 0;

    explicit ShownPane(std::string_view text = {})
    {
        pane.setText(text);
        pane.Change = [this] { ++changes; };
        view.resize(600, 400);
        view.show();
        view.setFocus();
        events();
    }
    static void events() { QApplication::processEvents(); }
    QString text() const { return view.toPlainText(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }
    void type(const QString& text) { QTest::keyClicks(&view, text); }
    void caretTo(int position)
    {
        view.settle();
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(position);
        view.setTextCursor(cursor);
    }
    void select(int from, int to)
    {
        view.settle();
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }
    void colour(std::int64_t start, std::int64_t length, Colour colour)
    {
        const auto oldStart = pane.SelStart();
        const auto oldLength = pane.SelLength();
        pane.setSelStart(start);
        pane.setSelLength(length);
        pane.setSelColor(colour);
        pane.setSelStart(oldStart);
        pane.setSelLength(oldLength);
    }
    Colour shownColour(int line, int column)
    {
        view.settle();
        view.formatAll();
        for (const auto& range : view.document()->findBlockByNumber(line).layout()->formats()) {
            if (column < range.start || column >= range.start + range.length) continue;
            const QColor shown = range.format.foreground().color();
            return shown.red() | shown.green() << 8 | shown.blue() << 16;
        }
        return 0;
    }
    /// Characters and colours of the document are those of the pane.
    void expectEqual()
    {
        view.settle();
        view.formatAll();
        EXPECT_EQ(text(), documentText(pane.Text()).replace(QChar::ParagraphSeparator, u'\n'));
        std::size_t position = 0;
        for (QTextBlock block = view.document()->firstBlock(); block.isValid(); block = block.next()) {
            std::vector<Colour> colours(static_cast<std::size_t>(block.length()) - 1, 0);
            for (const auto& range : block.layout()->formats()) {
                const QColor shown = range.format.foreground().color();
                ASSERT_LE(range.start + range.length, block.length() - 1) << "line " << block.blockNumber();
                for (int i = range.start; i < range.start + range.length; ++i) {
                    colours.at(static_cast<std::size_t>(i)) = shown.red() | shown.green() << 8 | shown.blue() << 16;
                }
            }
            for (const Colour shown : colours) {
                ASSERT_EQ(shown, pane.formatAt(position).colour) << "position " << position;
                ++position;
            }
            position += 2;
        }
        EXPECT_EQ(position, pane.TextLength() + 2);
    }
};

} // namespace tarvex
