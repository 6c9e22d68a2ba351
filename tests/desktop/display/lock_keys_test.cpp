// The panels of the lock keys follow the lights of a real keyboard.

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct LockKeyPanels : testing::Test {
    TestProgram test;
    MumWindow window{test.program()};

    LockKeyPanels() { window.show(); }
    const QLabel* panel(const QString& text) const
    {
        const auto labels = window.statusBar()->findChildren<QLabel*>();
        const auto found = std::ranges::find_if(labels, [&](const QLabel* label) { return label->text() == text; });
        return found == labels.end() ? nullptr : *found;
    }
    bool lit(const QString& text) const { return panel(text) != nullptr && panel(text)->isEnabled(); }
    static void press(const QString& key) { ASSERT_EQ(QProcess::execute("xdotool", {"key", key}), 0); }
    /// The key turns the panel on and the same key off again.
    void expectFollows(const QString& key, const QString& text)
    {
        const bool before = lit(text);
        press(key);
        EXPECT_TRUE(QTest::qWaitFor([&] { return lit(text) != before; }, 20'000)) << "after the first press";
        press(key);
        EXPECT_TRUE(QTest::qWaitFor([&] { return lit(text) == before; }, 20'000)) << "after the second press";
    }
};

TEST_F(LockKeyPanels, CapsLockTurnsItsPanelOnAndOff)
{
    expectFollows("Caps_Lock", "CAPS");
    EXPECT_FALSE(lit("NUM"));
}

TEST_F(LockKeyPanels, NumLockTurnsItsPanelOnAndOff)
{
    expectFollows("Num_Lock", "NUM");
    EXPECT_FALSE(lit("CAPS"));
}

TEST_F(LockKeyPanels, AKeyThatIsOnAtTheStartLightsItsPanel)
{
    press("Caps_Lock");
    EXPECT_TRUE(QTest::qWaitFor([&] { return lit("CAPS"); }, 20'000));
    {
        TestProgram later;
        const MumWindow another(later.program());
        const auto labels = another.statusBar()->findChildren<QLabel*>();
        EXPECT_TRUE(std::ranges::any_of(
            labels, [](const QLabel* label) { return label->text() == "CAPS" && label->isEnabled(); }));
    }
    press("Caps_Lock");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !lit("CAPS"); }, 20'000));
}

} // namespace
} // namespace tarvex
