#include "sheet/control_layers.h"

#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// The words of a line up to its comment; bytes.
std::vector<std::string_view> wordsOf(std::string_view line)
{
    std::vector<std::string_view> words;
    for (std::size_t at = line.find_first_not_of(blanks); at != std::string_view::npos;) {
        const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
        const std::string_view word = line.substr(at, end - at);
        if (word.starts_with("//") || word.starts_with('~') || upperWindows1252(word) == "REM") break;
        words.push_back(word);
        at = line.find_first_not_of(blanks, end);
    }
    return words;
}

template <typename Take> void eachLine(std::string_view text, Take take)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        take(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// Keys as they are shown beside a macro: raw codes say nothing to a reader, and a long definition would fill the page.
std::string shownKeys(const std::string& keys)
{
    constexpr std::size_t longest = 28;
    if (upperUtf8(keys).find("RAW") != std::string::npos) return "(raw codes)";
    if (utf8Length(keys) <= longest) return "(" + keys + ")";
    return "(" + std::string(utf8Left(keys, longest - 1)) + "…)";
}

/// A word each, so that lines can break between them.
void addKeys(std::vector<SheetWord>& words, const std::string& keys)
{
    for (std::size_t at = 0; at < keys.size();) {
        const std::size_t end = std::min(keys.find(' ', at), keys.size());
        words.push_back({keys.substr(at, end - at), SheetWord::Kind::Keys});
        at = end + 1;
    }
}

/// The modifiers in force while a statement is read.
class Modifiers {
public:
    char dogfight = ' ';
    char shift = ' ';

    /// False: the word is no modifier of a layer.
    bool take(std::string_view word)
    {
        const std::string upper = upperWindows1252(word);
        if (upper == "/U" || upper == "/M" || upper == "/D") {
            setOuter(Outer::Dogfight);
            if (m_outer == Outer::Dogfight) shift = ' ';
            dogfight = upper[1];
        } else if (upper == "/I" || upper == "/O") {
            setOuter(Outer::Shift);
            if (m_outer == Outer::Shift) dogfight = ' ';
            shift = upper[1];
        } else {
            return false;
        }
        return true;
    }

private:
    enum class Outer { None, Dogfight, Shift };
    void setOuter(Outer which)
    {
        if (m_outer == Outer::None) m_outer = which;
    }
    Outer m_outer = Outer::None;
};

std::size_t wordsInHead(const std::vector<std::string_view>& words)
{
    if (words.empty()) return 0;
    const std::string first = upperWindows1252(words.front());
    return std::min<std::size_t>(first == "BTN" || first == "RKR" ? 2 : 1, words.size());
}

void addWord(ControlLayer& layer, std::string_view word, const MacroKeys& macros)
{
    const auto macro = macros.find(word);
    const bool isMacro = macro != macros.end();
    layer.words.push_back({utf8FromWindows1252(word), isMacro ? SheetWord::Kind::Macro : SheetWord::Kind::Plain});
    if (isMacro && !macro->second.empty()) addKeys(layer.words, shownKeys(macro->second));
}

} // namespace

MacroKeys macroKeys(std::string_view macroFile)
{
    MacroKeys macros;
    eachLine(macroFile, [&](std::string_view line) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) return;
        const auto name = wordsOf(line.substr(0, equals));
        if (name.size() != 1) return;
        std::string keys;
        for (const std::string_view word : wordsOf(line.substr(equals + 1)))
            keys += (keys.empty() ? "" : " ") + utf8FromWindows1252(word);
        macros.try_emplace(std::string(name.front()), std::move(keys));
    });
    return macros;
}

std::vector<ControlLayer> controlLayers(std::string_view statement, const MacroKeys& macros)
{
    std::vector<std::string_view> words;
    eachLine(statement, [&](std::string_view line) {
        for (const std::string_view word : wordsOf(line)) words.push_back(word);
    });
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(wordsInHead(words)));
    std::vector<ControlLayer> layers(1);
    Modifiers modifiers;
    for (const std::string_view word : words) {
        if (modifiers.take(word)) {
            layers.push_back({modifiers.dogfight, modifiers.shift, {}});
        } else {
            addWord(layers.back(), word, macros);
        }
    }
    std::erase_if(layers, [](const ControlLayer& layer) { return layer.words.empty(); });
    return layers;
}

} // namespace tarvex
