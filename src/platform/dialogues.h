#pragma once

#include "platform/controls.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvex {

enum class BoxIcon { None, Information, Question, Exclamation };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// Texts are UTF-8; line breaks are "\n". A caption behind those of the buttons makes one more, which answers Ok.
struct MessageBox {
    std::string title;
    std::string text;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
    bool secondButtonIsDefault = false;
    /// Of the first buttons, "&" before the access key; empty and missing ones leave the system's own.
    std::vector<std::string> captions = {};
};

struct FileRequest {
    std::string title; ///< empty: the system's own title
    /// Alternating descriptions and patterns, joined by "|"; a pattern may hold several masks, joined by ";".
    std::string filter = {};
    std::string directory = {};        ///< DOS path where the dialogue starts
    std::string suggestedName = {};    ///< what the name field holds at first
    std::string defaultExtension = {}; ///< added to a typed name that has none; no dot
};

struct FontChoice {
    std::string name;
    float size = 0; ///< points
    bool bold = false;
};

/// Everything that stops the program until the user has answered.
class Dialogues {
public:
    virtual ~Dialogues() = default;

    /// Shows the box and waits. Closing it by its frame is Cancel where there is a Cancel button, No where there is
    /// none but a No button, else Ok.
    virtual Answer show(const MessageBox& box) = 0;

    /// The DOS path of an existing file, or nothing when the user cancelled.
    virtual std::optional<std::string> openFile(const FileRequest& request) = 0;
    /// The DOS path of a file to write; it may exist, the dialogue doesn't ask about that. Nothing when cancelled.
    virtual std::optional<std::string> saveFile(const FileRequest& request) = 0;

    /// The DOS path of an existing folder, without "\" at its end except for a drive's root; nothing when cancelled.
    /// The dialogue starts in `directory`, if that is a folder.
    virtual std::optional<std::string> chooseFolder(const std::string& title, const std::string& directory) = 0;

    /// The colour that the user chose, or nothing when cancelled. The dialogue starts with `now`.
    virtual std::optional<Colour> chooseColour(Colour now) = 0;
    /// The font that the user chose, its size in points, or nothing when cancelled. The dialogue starts with `now`.
    virtual std::optional<FontChoice> chooseFont(const FontChoice& now, bool fixedPitchOnly) = 0;

    /// Shows the window of that name modally and returns when it has closed. False: there is no such window.
    virtual bool showModal(const std::string& formName) = 0;

    /// Shows the menu below `root` at the mouse and returns when it has closed and its command has run.
    virtual void popUp(const MenuItem& root) = 0;
    /// The same at the caret of the text that has the keyboard; at the mouse when none has it.
    virtual void popUpAtCaret(const MenuItem& root) = 0;
};

} // namespace tarvex
