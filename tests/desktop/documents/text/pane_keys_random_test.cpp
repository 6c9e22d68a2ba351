// Random keys, sent to a pane's view and to a plain text widget alike: after each of them both hold the same text and
// the same selection, and the pane has run Change exactly when the plain widget's text was written.

#include "desktop/documents/text/pane_text.h"
#include "desktop/documents/text/pane_view.h"
#include "support/random_seed.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Key {
    Qt::Key key;
    QString text;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// Few characters, so that what is typed often equals what it replaces.
class RandomKeys {
public:
    explicit RandomKeys(unsigned seed) : m_random(seed) {}

    Key next()
    {
        switch (below(12)) {
        case 0:
            return oneOf({{Qt::Key_Return, "\r"}, {Qt::Key_Tab, "\t"}, {Qt::Key_Insert, {}}});
        case 1:
            return {below(2) == 0 ? Qt::Key_Backspace : Qt::Key_Delete, {}, word()};
        case 2:
        case 3:
        case 4:
            return {oneOf({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}), {}, shift() | word()};
        case 5:
            return {oneOf({Qt::Key_Home, Qt::Key_End}), {}, shift() | word()};
        default:
            return oneOf({{Qt::Key_A, "a"}, {Qt::Key_A, "a"}, {Qt::Key_B, "b"}, {Qt::Key_Space, " "}});
        }
    }

private:
    std::size_t below(std::size_t bound) { return m_random() % bound; }
    Key oneOf(const std::vector<Key>& keys) { return keys[below(keys.size())]; }
    Qt::Key oneOf(const std::vector<Qt::Key>& keys) { return keys[below(keys.size())]; }
    Qt::KeyboardModifiers shift() { return below(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier; }
    Qt::KeyboardModifiers word() { return below(4) == 0 ? Qt::ControlModifier : Qt::NoModifier; }

    std::mt19937 m_random;
};

/// A pane's view beside the widget that it must not differ from.
class Pair {
public:
    Pair()
    {
        for (QPlainTextEdit* edit : {static_cast<QPlainTextEdit*>(&m_view), &m_plain}) {
            edit->setLineWrapMode(QPlainTextEdit::NoWrap);
            edit->setFont(m_view.font());
            edit->setTabStopDistance(m_view.tabStopDistance());
            edit->resize(300, 200);
            edit->show();
        }
        m_pane.Change = [this] { m_changed = true; };
        QObject::connect(&m_plain, &QPlainTextEdit::textChanged, [this] { m_written = true; });
        QApplication::processEvents();
    }

    void press(const Key& key)
    {
        m_changed = m_written = false;
        QTest::sendKeyEvent(QTest::Click, &m_view, key.key, key.text, key.modifiers);
        if (key.key == Qt::Key_Insert)
            m_plain.setOverwriteMode(!m_plain.overwriteMode()); // it has no key for it
        else
            QTest::sendKeyEvent(QTest::Click, &m_plain, key.key, key.text, key.modifiers);
    }
    int length() const { return m_plain.document()->characterCount() - 1; }

    testing::AssertionResult equal()
    {
        const QTextCursor seen = m_view.textCursor();
        const QTextCursor wanted = m_plain.textCursor();
        if (m_view.toPlainText() != m_plain.toPlainText()) return differ("text of the view", m_view.toPlainText());
        if (paneText() != m_plain.toPlainText()) return differ("text of the pane", paneText());
        if (seen.position() != wanted.position()) return differ("caret", QString::number(seen.position()));
        if (seen.anchor() != wanted.anchor())
            return differ("other end of the selection", QString::number(seen.anchor()));
        if (m_pane.SelStart() != inPane(wanted.selectionStart()))
            return differ("SelStart", QString::number(m_pane.SelStart()));
        const std::int64_t length = inPane(wanted.selectionEnd()) - inPane(wanted.selectionStart());
        if (m_pane.SelLength() != length) return differ("SelLength", QString::number(m_pane.SelLength()));
        if (m_changed != m_written) return differ("Change", m_changed ? "run" : "not run");
        return testing::AssertionSuccess();
    }

private:
    QString paneText() const { return documentText(m_pane.Text()).replace(QChar::ParagraphSeparator, u'\n'); }
    std::int64_t inPane(int position) const { return position + m_plain.document()->findBlock(position).blockNumber(); }
    testing::AssertionResult differ(const char* what, const QString& value) const
    {
        const QTextCursor wanted = m_plain.textCursor();
        return testing::AssertionFailure() << what << " is \"" << value.toStdString() << "\" where the text is \""
                                           << m_plain.toPlainText().toStdString() << "\", selected from "
                                           << wanted.anchor() << " to " << wanted.position();
    }

    Pane m_pane;
    PaneView m_view{m_pane};
    QPlainTextEdit m_plain;
    bool m_changed = false;
    bool m_written = false;
};

TEST(PaneKeys, HundredThousandKeysDoWhatTheyDoInAPlainTextWidget)
{
    constexpr int events = 100'000;
    constexpr int longest = 120; // characters; keeps each step quick
    RandomKeys keys(randomSeed());
    Pair pair;
    for (int i = 0; i < events; ++i) {
        const bool full = pair.length() > longest;
        const Key key = full ? Key{Qt::Key_A, {}, Qt::ControlModifier} : keys.next();
        pair.press(key);
        ASSERT_TRUE(pair.equal()) << "after key " << i << ": "
                                  << QKeySequence(QKeyCombination(key.modifiers, key.key)).toString().toStdString();
        if (i % 16 == 0) QApplication::processEvents();
        if (full) pair.press({Qt::Key_Delete, {}});
    }
}

} // namespace
} // namespace tarvex
