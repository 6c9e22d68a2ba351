#pragma once

#include "support/test_program.h"

#include <deque>
#include <string>
#include <utility>

namespace tarvex {

inline constexpr const char* joystickPath = "c:\\tm\\b50progs\\mig.b50";
inline constexpr const char* macroPath = "c:\\tm\\b50progs\\mig.m50";
inline constexpr const char* recoverDirectory = "c:\\tarvex\\Recover";

/// A pair of files open in the program.
struct OpenPair : TestProgram {
    OpenPair()
    {
        files.addFile(joystickPath, "BTN S1 fire\r\n");
        files.addFile(macroPath, "fire = x\r\n");
        openBoth(joystickPath);
        dialogues.boxes.clear();
    }
    Side& joystick() { return editor().joystick; }
    Side& macro() { return editor().macro; }
    /// The program is gone without a word, and is started again.
    void killAndStart(std::deque<Answer> answers = {})
    {
        dialogues.boxes.clear();
        dialogues.answers = std::move(answers);
        start();
    }
    void fifteenSecondsLater() { editor().TimerJournal.Tick(); }
    /// Syncs the journals until the disk has them.
    void diskIsDone()
    {
        fifteenSecondsLater();
        fifteenSecondsLater();
    }
    std::size_t journals() { return files.directoryExists(recoverDirectory) ? files.list(recoverDirectory).size() : 0; }
    std::string onlyJournal()
    {
        return journals() == 1 ? std::string(recoverDirectory) + "\\" + files.list(recoverDirectory).front() : "(none)";
    }
};

} // namespace tarvex
