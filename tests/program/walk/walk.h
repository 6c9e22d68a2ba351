#pragma once

#include "support/test_program.h"

#include <functional>
#include <map>
#include <random>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace tarvex {

using Random = std::mt19937;

inline unsigned below(Random& random, unsigned bound) { return static_cast<unsigned>(random() % bound); }
template <typename List> const auto& oneOf(Random& random, const List& list)
{
    return list[below(random, static_cast<unsigned>(std::size(list)))];
}

/// The folder that all files of a walk are in.
inline constexpr const char* walkFolder = "c:\\tm\\b50progs\\";

/// The machine with the program on it, what the user knows of his files, and any answer to what the program asks.
class Walk : public TestProgram {
public:
    explicit Walk(unsigned seed);

    /// The program is gone without a word, and comes up again.
    void restart();
    Side& side() { return editor().selected(); }
    Pane& pane() { return side().pane; }
    Side& anySide() { return below(random, 2) == 0 ? editor().joystick : editor().macro; }

    Random random;
    std::map<std::string, std::string> saved;   ///< what each file has to hold
    std::map<std::string, std::string> outside; ///< what other programs wrote, by path, until a document has read it
    std::set<std::string> removed;              ///< files that other programs have removed, and nobody has made again
    unsigned stripsAnswered = 0;                ///< that spoke of such changes
    unsigned keptOutside = 0;                   ///< how many of those were overwritten, and kept elsewhere
    unsigned broughtBack = 0;                   ///< texts, after the program was killed
    unsigned damagedJournals = 0;               ///< that were noticed as such
    std::function<void()> beforeRestart;        ///< what shows the program lets go of it
    std::function<void()> afterRestart;

private:
    void save(const std::string& name, const std::string& text);
};

/// What both panes hold.
struct Texts {
    std::string joystick;
    std::string macro;
};
Texts textsOf(Walk& walk);

/// Fails the test unless the program is as it has to be after any action; `before` are the texts before it.
void check(Walk& walk, const Texts& before);

/// What must remain of a document after the program is killed.
struct Unsaved {
    std::string text;
    bool mustComeBack;
};
Unsaved unsavedOf(const Walk& walk, const Side& side);

/// Something that a user does.
struct Action {
    const char* name;
    int weight;
    void (*run)(Walk&);
};
std::span<const Action> usualActions();
/// The same user on a disk that damages journals.
std::vector<Action> actionsWithDamage();
/// Actions come as often as their weights say.
const Action& nextAction(Random& random, std::span<const Action> all);

/// Another program writes to one of the files.
void writeOutside(Walk& walk);

/// Another program removes the file of a document.
void removeOutside(Walk& walk);
/// The user comes back to the window, and answers what it says of other programs, or doesn't.
void answerStrips(Walk& walk);

/// The program ends in an orderly way, which leaves nothing behind, and comes up again.
void exitAndRestart(Walk& walk);

/// Keeps a walk quick: a hundred lines show what ten thousand would.
void shorten(Walk& walk);

/// A number of the environment.
unsigned fromEnvironment(const char* name, unsigned otherwise);

} // namespace tarvex
