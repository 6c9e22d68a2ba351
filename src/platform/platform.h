#pragma once

#include "platform/dialogues.h"
#include "platform/files.h"
#include "platform/processes.h"

#include <string>

namespace tarvex {

/// Plays a sound file; returns when it has ended. A file that can't be played is passed over.
class Sound {
public:
    virtual ~Sound() = default;
    virtual void play(const std::string& path) = 0;
};

/// What the window system does for the program beside showing windows.
class Desktop {
public:
    virtual ~Desktop() = default;
    /// Another copy of the program runs already.
    virtual bool anotherInstanceRuns() = 0;
    /// Handles the window events that wait, then returns.
    virtual void doEvents() = 0;
    /// Work is held up: waits until the user presses Esc. The windows stay drawn meanwhile; nothing else is taken from
    /// the user, and no timer of the program ticks. Returns at once where nobody can press it.
    virtual void waitForEscape() {}
    /// Size of the screen in twips.
    virtual float screenWidth() const = 0;
    virtual float screenHeight() const = 0;
    /// Today's date with the month's name, as the user's country writes it. UTF-8.
    virtual std::string longDate() const = 0;
    /// The pointer that asks the user to wait, on or off.
    virtual void showHourglass(bool on) = 0;
    /// Has the system open a file of the program directory, as a double click on it does. Without such a file nothing
    /// happens.
    virtual void openProgramFile(const std::string&) {}
    /// Ends the message loop; the process ends in good order.
    virtual void quit() = 0;
};

/// What the system's clipboard, or a drag between windows, carries. Empty members mean that the form isn't there.
struct ClipboardContent {
    std::string text; ///< UTF-8
    std::string rtf;
};

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void put(const ClipboardContent& content) = 0;
    virtual ClipboardContent get() const = 0;
    /// There is a text to get, plain or as RTF. Cheap enough for every key.
    virtual bool holdsText() const = 0;
    Signal<> changed; ///< the contents may have changed, in this program or another
};

class Machine;
class Pictures;
class Printers;

/// The world as the program sees it. All members outlive the program.
struct Platform {
    FileSystem& files;
    Dialogues& dialogues;
    Desktop& desktop;
    Sound& sound;
    Clipboard& clipboard;
    Processes& processes;
    Machine& machine;
    Printers& printers;
    Pictures& pictures;
    std::string programDirectory; ///< DOS path of the directory with the settings, no "\" at the end
    std::string commandLine;      ///< one DOS path or nothing
};

} // namespace tarvex
