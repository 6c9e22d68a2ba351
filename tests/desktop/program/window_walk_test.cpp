// The random walk with the windows on it: real keys and clicks in the panes, and anything else that a user does. After
// each the program is as it has to be, and the panes show it. TARVEX_SEED repeats a walk, TARVEX_STEPS sets its length.

#include "desktop/documents/text/pane_text.h"
#include "desktop/program/mum_window.h"
#include "program/walk/walk.h"
#include "support/random_seed.h"

#include <QApplication>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

class WindowWalk {
public:
    explicit WindowWalk(unsigned seed) : m_walk(seed)
    {
        m_walk.beforeRestart = [this] { m_window.reset(); };
        m_walk.afterRestart = [this] { show(); };
        show();
    }
    Walk& walk() { return m_walk; }

    /// What was done, in words.
    std::string step()
    {
        switch (below(m_walk.random, 8)) {
        case 0: {
            const Action& action = nextAction(m_walk.random, usualActions());
            action.run(m_walk);
            return action.name;
        }
        case 1:
            return click();
        default:
            return press();
        }
    }
    void settle() { QApplication::processEvents(); }
    void expectShown()
    {
        for (const Side* side : {&m_walk.editor().joystick, &m_walk.editor().macro}) {
            SCOPED_TRACE(side->kind);
            PaneView& view = m_window->editor().pane(*side);
            view.settle();
            EXPECT_EQ(view.toPlainText(), documentText(side->pane.Text()).replace(QChar::ParagraphSeparator, u'\n'));
            const QTextCursor cursor = view.textCursor();
            const std::int64_t start = side->pane.SelStart();
            EXPECT_EQ(panePosition(view, cursor.selectionStart()), shownPosition(side->pane, start));
            EXPECT_EQ(panePosition(view, cursor.selectionEnd()),
                      shownPosition(side->pane, start + side->pane.SelLength()));
        }
    }

private:
    void show()
    {
        m_window = std::make_unique<MumWindow>(m_walk.program());
        m_window->showNormal();
        m_window->resize(900, 600);
        m_window->activateWindow();
        settle();
    }
    /// A line end is one position in the view and two in the pane.
    static std::int64_t panePosition(const PaneView& view, int position)
    {
        return position + view.document()->findBlock(position).blockNumber();
    }
    /// A position between CR and LF, where only the program can set one, shows before the pair.
    static std::int64_t shownPosition(const Pane& pane, std::int64_t position)
    {
        const auto index = static_cast<std::size_t>(position);
        const bool partsPair = position > 0 && pane.Text().substr(index - 1, 2) == "\r\n";
        return partsPair ? position - 1 : position;
    }
    PaneView& view() { return m_window->editor().pane(m_walk.side()); }

    std::string press()
    {
        struct Key {
            Qt::Key key;
            Qt::KeyboardModifiers modifiers;
        };
        constexpr Qt::KeyboardModifiers none = Qt::NoModifier;
        constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        static const Key keys[] = {
            {Qt::Key_A, none},         {Qt::Key_B, none},      {Qt::Key_A, shift},        {Qt::Key_Space, none},
            {Qt::Key_Slash, none},     {Qt::Key_Equal, none},  {Qt::Key_Return, none},    {Qt::Key_Return, shift},
            {Qt::Key_Backspace, none}, {Qt::Key_Delete, none}, {Qt::Key_Backspace, ctrl}, {Qt::Key_Tab, none},
            {Qt::Key_Left, none},      {Qt::Key_Right, none},  {Qt::Key_Up, none},        {Qt::Key_Down, none},
            {Qt::Key_Left, shift},     {Qt::Key_Right, shift}, {Qt::Key_Up, shift},       {Qt::Key_End, shift},
            {Qt::Key_Home, none},      {Qt::Key_End, none},    {Qt::Key_Home, ctrl},      {Qt::Key_End, ctrl},
            {Qt::Key_Insert, none},    {Qt::Key_A, ctrl},      {Qt::Key_C, ctrl},         {Qt::Key_X, ctrl},
            {Qt::Key_V, ctrl},         {Qt::Key_Z, ctrl},      {Qt::Key_Y, ctrl},         {Qt::Key_S, ctrl},
            {Qt::Key_Tab, ctrl},
        };
        const Key& key = oneOf(m_walk.random, keys);
        // A window of the program may be in front; the pane gets the key as if the user had gone back to it.
        QTest::keyClick(&view(), key.key, key.modifiers);
        return "press " + QKeySequence(key.modifiers | key.key).toString().toStdString();
    }
    std::string click()
    {
        const QRect room = view().viewport()->rect();
        if (room.isEmpty()) return "no room to click";
        const QPoint place(static_cast<int>(below(m_walk.random, static_cast<unsigned>(room.width()))),
                           static_cast<int>(below(m_walk.random, static_cast<unsigned>(room.height()))));
        const bool extends = below(m_walk.random, 3) == 0;
        QTest::mouseClick(view().viewport(), Qt::LeftButton, extends ? Qt::ShiftModifier : Qt::NoModifier, place);
        return "click";
    }

    Walk m_walk;
    std::unique_ptr<MumWindow> m_window;
};

TEST(WindowWalk, AfterAnyKeyTheProgramIsAsItHasToBeAndThePanesShowIt)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 5'000);
    WindowWalk walk(randomSeed());
    std::string last;
    for (unsigned step = 0; step < steps && !HasFailure(); ++step) {
        walk.walk().dialogues.boxes.clear();
        const Texts before = textsOf(walk.walk());
        const std::string done = walk.step();
        SCOPED_TRACE("step " + std::to_string(step) + ": " + done + ", after" + last);
        walk.settle();
        check(walk.walk(), before);
        walk.expectShown();
        shorten(walk.walk());
        walk.settle();
        last = last.substr(last.size() > 200 ? last.find(',', last.size() - 200) : 0) + ", " + done;
    }
}

} // namespace
} // namespace tarvex
