#include "program/walk/walk.h"

#include <array>
#include <cstdlib>

namespace tarvex {

namespace {

constexpr const char* joystickFiles[] = {"mig.b50", "su27.b50", "f22.f22"};
constexpr const char* macroFiles[] = {"mig.m50", "su27.m50", "f22.m22"};

/// Text lost in a crash is always restored.
Answer anyAnswer(Random& random, const MessageBox& box)
{
    if (box.title.starts_with("Phew")) return Answer::Yes;
    if (box.buttons == BoxButtons::YesNo) return below(random, 3) == 0 ? Answer::No : Answer::Yes;
    return std::array{Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel}[below(random, 4)];
}

std::optional<std::string> anyFile(Random& random, bool macro)
{
    if (below(random, 5) == 0) return std::nullopt;
    return walkFolder + std::string(macro ? oneOf(random, macroFiles) : oneOf(random, joystickFiles));
}

} // namespace

Walk::Walk(unsigned seed) : TestProgram(false), random(seed)
{
    for (const char* name : joystickFiles) save(name, "BTN S1 fire /R gear\r\n");
    for (const char* name : macroFiles) save(name, "fire = f\r\ngear = g\r\n");
    dialogues.otherAnswers = [this](const MessageBox& box) { return anyAnswer(random, box); };
    dialogues.otherFilesToOpen = [this](const FileRequest& request) {
        const bool both = request.title.starts_with("Select");
        return anyFile(random, request.title == "Opening file" || (both && below(random, 2) == 0));
    };
    dialogues.otherFilesToSave = [this](const FileRequest& request) {
        return anyFile(random, request.filter.starts_with("Macro"));
    };
    restart();
}

void Walk::restart()
{
    if (beforeRestart) beforeRestart();
    start();
    settings().UndoMax = 10;
    if (afterRestart) afterRestart();
}

void Walk::save(const std::string& name, const std::string& text)
{
    files.addFile(walkFolder + name, text);
    saved[walkFolder + name] = text;
}

void writeOutside(Walk& walk)
{
    static unsigned writes = 0; // so that no two texts are equal
    const std::string name =
        below(walk.random, 2) == 0 ? oneOf(walk.random, joystickFiles) : oneOf(walk.random, macroFiles);
    const std::string text = "Rem another program's text " + std::to_string(++writes) + "\r\n";
    walk.files.addFile(walkFolder + name, text);
    walk.saved[walkFolder + name] = text;
    walk.outside[walkFolder + name] = text;
}

Texts textsOf(Walk& walk) { return {walk.editor().JoystickText.Text(), walk.editor().MacroText.Text()}; }

unsigned fromEnvironment(const char* name, unsigned otherwise)
{
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : otherwise;
}

} // namespace tarvex
