#pragma once

#include "support/test_program.h"

#include <map>
#include <string>
#include <vector>

namespace tarvex {

/// What the user, or another part of the program, can see of a program, by the name of the thing: "joystick.Caret",
/// "mnuEditUndo.Enabled", "file c:\tarvex\Tarvex.ini".
using ProgramState = std::map<std::string, std::string>;

ProgramState stateOf(TestProgram& program);
/// A line for each thing that is different.
std::vector<std::string> differencesOf(const ProgramState& before, const ProgramState& after);

/// What a text looks like in one line of a list.
std::string inOneLine(const std::string& text);

/// What happens in a program and leaves no trace in its state, in its order: boxes and dialogues, the keyboard's
/// changes of place, what a view is asked for.
class Happenings {
public:
    explicit Happenings(TestProgram& program);

    std::vector<std::string> lines;

private:
    void note(Signal<>& signal, const std::string& what);

    std::vector<Connection> m_connections;
};

} // namespace tarvex
