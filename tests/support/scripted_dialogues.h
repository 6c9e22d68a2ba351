#pragma once

#include "platform/dialogues.h"
#include "platform/errors.h"

#include <gtest/gtest.h>

#include <deque>
#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace tarvex {

/// Gives its answers in turn and keeps what was asked. A question with several answers that nobody scripted fails the
/// test, and so does an answer that nobody asked for; a box with nothing but OK needs no script.
class ScriptedDialogues final : public Dialogues {
public:
    ScriptedDialogues() = default;
    ~ScriptedDialogues() override { expectUsedUp(); }
    ScriptedDialogues(const ScriptedDialogues&) = delete;
    ScriptedDialogues& operator=(const ScriptedDialogues&) = delete;

    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> filesToOpen; ///< nothing: the user cancels
    std::deque<std::optional<std::string>> filesToSave;
    std::deque<std::optional<std::string>> folders;
    std::deque<std::optional<Colour>> colours;
    std::deque<std::optional<FontChoice>> fonts;
    std::function<void()> whileOpening; ///< runs while a file dialogue is up
    std::function<void()> whileSaving;
    bool modalFormsExist = true;
    std::function<void()> whileModal; ///< runs while a modal window is up

    // Where these are set, they answer what nobody has scripted.
    std::function<Answer(const MessageBox&)> otherAnswers;
    std::function<std::optional<std::string>(const FileRequest&)> otherFilesToOpen;
    std::function<std::optional<std::string>(const FileRequest&)> otherFilesToSave;

    std::vector<MessageBox> boxes;
    std::vector<FileRequest> openRequests;
    std::vector<FileRequest> saveRequests;
    std::vector<FileRequest> folderRequests;
    std::vector<std::string> modalForms;
    std::vector<Colour> coloursShown; ///< what the dialogues started with
    std::vector<FontChoice> fontsShown;
    bool fixedPitchWanted = false;
    std::vector<std::string> popUps; ///< names of the menus that popped up
    std::vector<std::string> popUpsAtCaret;
    std::function<void()> whilePoppedUp; ///< runs while a menu is up

    Answer show(const MessageBox& box) override
    {
        boxes.push_back(box);
        if (box.buttons == BoxButtons::Ok) return Answer::Ok;
        if (answers.empty() && otherAnswers) return otherAnswers(box);
        return next(answers, Answer::Cancel, box.title + ": " + box.text);
    }
    std::optional<std::string> openFile(const FileRequest& request) override
    {
        openRequests.push_back(request);
        act(whileOpening);
        if (filesToOpen.empty() && otherFilesToOpen) return otherFilesToOpen(request);
        return next(filesToOpen, std::optional<std::string>(), "open " + request.title);
    }
    std::optional<std::string> saveFile(const FileRequest& request) override
    {
        saveRequests.push_back(request);
        act(whileSaving);
        if (filesToSave.empty() && otherFilesToSave) return otherFilesToSave(request);
        return next(filesToSave, std::optional<std::string>(), "save " + request.suggestedName);
    }
    std::optional<std::string> chooseFolder(const std::string& title, const std::string& directory) override
    {
        folderRequests.push_back({.title = title, .directory = directory});
        return next(folders, std::optional<std::string>(), "folder " + title);
    }
    std::optional<Colour> chooseColour(Colour now) override
    {
        coloursShown.push_back(now);
        return next(colours, std::optional<Colour>(), "colour");
    }
    std::optional<FontChoice> chooseFont(const FontChoice& now, bool fixedPitchOnly) override
    {
        fontsShown.push_back(now);
        fixedPitchWanted = fixedPitchOnly;
        return next(fonts, std::optional<FontChoice>(), "font");
    }
    bool showModal(const std::string& formName) override
    {
        modalForms.push_back(formName);
        act(whileModal);
        return modalFormsExist;
    }
    void popUp(const MenuItem& root) override
    {
        popUps.push_back(root.Name);
        act(whilePoppedUp);
    }
    void popUpAtCaret(const MenuItem& root) override
    {
        popUpsAtCaret.push_back(root.Name);
        act(whilePoppedUp);
    }

    /// Everything scripted so far was asked for.
    void expectUsedUp() const
    {
        EXPECT_EQ(answers.size(), 0U) << "scripted, but not asked for: answers to boxes";
        EXPECT_EQ(filesToOpen.size(), 0U) << "scripted, but not asked for: files to open";
        EXPECT_EQ(filesToSave.size(), 0U) << "scripted, but not asked for: files to save";
        EXPECT_EQ(folders.size(), 0U) << "scripted, but not asked for: folders";
    }

private:
    /// Whatever else than an error of the program's own ends the act of a test, the program would swallow.
    static void act(const std::function<void()>& work)
    {
        if (!work) return;
        try {
            work();
        } catch (const RuntimeError&) {
            throw; // on purpose
        } catch (const std::exception& error) {
            ADD_FAILURE() << "the act ended early: " << error.what();
        }
    }
    template <typename T> static T next(std::deque<T>& scripted, T otherwise, const std::string& what)
    {
        if (scripted.empty()) {
            ADD_FAILURE() << "not scripted: " << what;
            return otherwise;
        }
        T first = scripted.front();
        scripted.pop_front();
        return first;
    }
};

} // namespace tarvex
