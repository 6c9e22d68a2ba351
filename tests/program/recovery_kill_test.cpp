// A process with the whole program types into both panes and is killed at random moments: what reached a pane is there
// at the next start, each time.

#include "support/disk_program.h"
#include "support/kill_moments.h"
#include "support/random_seed.h"
#include "support/temporary_directory.h"

#include <csignal>
#include <cstdint>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {

namespace {

using Step = std::uint32_t;

struct Texts {
    std::string joystick;
    std::string macro;
    bool operator==(const Texts&) const = default;
};

enum class Act { TypeJoystick, TypeMacro, Backspace, Clear, SaveBoth };

Act actOf(Step step)
{
    if (step % 211 == 210) return Act::SaveBoth;
    if (step % 997 == 996) return Act::Clear;
    if (step % 13 == 7) return Act::Backspace;
    return step % 2 == 0 ? Act::TypeJoystick : Act::TypeMacro;
}

char letterOf(Step step) { return step % 19 == 0 ? '\r' : static_cast<char>('a' + step / 2 % 26); }
std::string typed(Step step) { return letterOf(step) == '\r' ? "\r\n" : std::string(1, letterOf(step)); }

/// What the step makes of the texts.
void follow(Texts& texts, Step step)
{
    switch (actOf(step)) {
    case Act::TypeJoystick:
        texts.joystick += typed(step);
        break;
    case Act::TypeMacro:
        texts.macro += typed(step);
        break;
    case Act::Backspace:
        if (texts.joystick.ends_with("\r\n"))
            texts.joystick.resize(texts.joystick.size() - 2);
        else if (!texts.joystick.empty())
            texts.joystick.pop_back();
        break;
    case Act::Clear:
        texts.macro.clear();
        break;
    case Act::SaveBoth:
        break;
    }
}

void pressKey(Pane& pane, Step step)
{
    pane.KeyPress(letterOf(step));
    pane.userEdit(static_cast<std::int64_t>(pane.TextLength()), 0, typed(step));
}

void pressBackspace(Pane& pane)
{
    const auto length = static_cast<std::int64_t>(pane.TextLength());
    const std::int64_t removed = pane.Text().ends_with("\r\n") ? 2 : 1;
    pane.KeyPress('\b');
    if (length > 0) pane.userEdit(length - removed, removed, "");
}

/// The same in the program.
void act(Program& program, Step step)
{
    Editor& editor = program.editor;
    switch (actOf(step)) {
    case Act::TypeJoystick:
        return pressKey(editor.JoystickText, step);
    case Act::TypeMacro:
        return pressKey(editor.MacroText, step);
    case Act::Backspace:
        return pressBackspace(editor.JoystickText);
    case Act::Clear:
        return editor.MacroText.userEdit(0, static_cast<std::int64_t>(editor.MacroText.TextLength()), "");
    case Act::SaveBoth:
        return program.menus.mnuFileSaveBoth.Click();
    }
}

/// A start that brings back what there is.
struct Restarted : DiskProgram {
    explicit Restarted(const std::string& folder) : DiskProgram(folder, "c:\\tm\\mig.b50")
    {
        dialogues.otherAnswers = [](const MessageBox& box) { // none when the kill came before the first key
            EXPECT_TRUE(box.title.starts_with("Phew")) << box.title;
            return Answer::Yes;
        };
        start();
    }
    Texts texts() const { return {program->editor.JoystickText.Text(), program->editor.MacroText.Text()}; }
};

[[noreturn]] void typeForEver(const std::string& folder, Step step, int report)
{
    Restarted t(folder);
    for (;; ++step) {
        act(*t.program, step);
        if (step % 50 == 0) t.program->editor.TimerJournal.Tick();
        if (::write(report, &step, sizeof step) != sizeof step) ::_exit(1);
    }
}

struct Round {
    Step done; ///< the last step that was reported
    bool wasKilled = false;
};

Round typeAndKill(const std::string& folder, Step from, std::mt19937& random)
{
    int ends[2] = {};
    if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        typeForEver(folder, from, ends[1]);
    }
    ::close(ends[1]);

    Round round{from - 1};
    const unsigned reports = random() % 300; // none: it may be killed while it starts
    for (unsigned i = 0; i < reports; ++i) {
        if (::read(ends[0], &round.done, sizeof(Step)) != sizeof(Step)) break;
    }
    dawdle(random() % 200'000);
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    round.wasKilled = WIFSIGNALED(status);
    while (::read(ends[0], &round.done, sizeof(Step)) == sizeof(Step)) {
    }
    ::close(ends[0]);
    return round;
}

} // namespace

TEST(RecoveryKill, EveryCharacterThatReachedAPaneBeforeTheKillComesBack)
{
    constexpr int kills = 200;
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    const TemporaryDirectory disk(fastDisk());
    disk.put("Tarvex.ini", DiskProgram::settings);
    disk.put("drive_c/tm/mig.b50", "");
    disk.put("drive_c/tm/mig.m50", "");

    Texts expected;
    Step next = 1;
    for (int i = 0; i < kills; ++i) {
        const Round round = typeAndKill(disk.path(), next, random);
        ASSERT_TRUE(round.wasKilled);
        for (; next <= round.done; ++next) follow(expected, next);
        Texts oneMore = expected;
        follow(oneMore, next);

        const Restarted t(disk.path());
        if (t.texts() == oneMore) { // the kill came between the key and the report of it
            expected = oneMore;
            ++next;
        }
        ASSERT_EQ(t.texts().joystick, expected.joystick) << "kill " << i << ", step " << round.done;
        ASSERT_EQ(t.texts().macro, expected.macro) << "kill " << i << ", step " << round.done;
    }
    EXPECT_GT(next, 5000U) << "enough was typed";

    Restarted t(disk.path());
    t.dialogues.otherAnswers = [](const MessageBox&) { return Answer::No; };
    ASSERT_TRUE(t.program->exit());
    EXPECT_EQ(namesIn(disk / "Recover"), std::vector<std::string>());
}

} // namespace tarvex
