#include "sheet/control_layers.h"

#include "platform/windows1252.h"
#include "sheet/short_keys.h"

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

/// The modifiers in force while a statement is read.
class Modifiers {
public:
    char dogfight = ' ';
    char shift = ' ';

    static bool isOne(std::string_view word)
    {
        const std::string upper = upperWindows1252(word);
        return upper.size() == 2 && upper[0] == '/' && std::string_view("UMDIO").find(upper[1]) != std::string::npos;
    }
    /// `word` is one.
    void take(std::string_view word)
    {
        const char letter = upperWindows1252(word)[1];
        if (letter == 'I' || letter == 'O') {
            setOuter(Outer::Shift);
            if (m_outer == Outer::Shift) dogfight = ' ';
            shift = letter;
        } else {
            setOuter(Outer::Dogfight);
            if (m_outer == Outer::Dogfight) shift = ' ';
            dogfight = letter;
        }
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

/// The layers of one position of the dogfight switch, without it.
std::vector<ControlLayer> layersIn(const std::vector<ControlLayer>& layers, char dogfight)
{
    std::vector<ControlLayer> found;
    for (ControlLayer layer : layers) {
        if (layer.dogfight != dogfight) continue;
        layer.dogfight = ' ';
        found.push_back(std::move(layer));
    }
    return found;
}

/// S3 makes no difference where it does the same held in and out.
void joinShift(std::vector<ControlLayer>& layers)
{
    std::vector<ControlLayer> joined;
    for (ControlLayer& layer : layers) {
        const bool alike = !joined.empty() && joined.back().dogfight == layer.dogfight && joined.back().shift != ' ' &&
                           layer.shift != ' ' && joined.back().shift != layer.shift &&
                           joined.back().words == layer.words;
        if (alike)
            joined.back().shift = ' ';
        else
            joined.push_back(std::move(layer));
    }
    layers = std::move(joined);
}

/// The same for the three positions of the dogfight switch.
void joinDogfight(std::vector<ControlLayer>& layers)
{
    const std::vector<ControlLayer> up = layersIn(layers, 'U');
    if (up.empty() || layers.size() != 3 * up.size()) return;
    if (layersIn(layers, 'M') == up && layersIn(layers, 'D') == up) layers = up;
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
        macros.try_emplace(std::string(name.front()), shortKeys(wordsOf(line.substr(equals + 1))));
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
    std::vector<ControlLayer> layers;
    Modifiers modifiers;
    std::vector<std::string_view> ofLayer;
    const auto end = [&] {
        layers.push_back({modifiers.dogfight, modifiers.shift, shortWords(ofLayer, macros)});
        ofLayer.clear();
    };
    for (const std::string_view word : words) {
        if (Modifiers::isOne(word)) {
            end();
            modifiers.take(word);
        } else {
            ofLayer.push_back(word);
        }
    }
    end();
    std::erase_if(layers, [](const ControlLayer& layer) { return layer.words.empty(); });
    joinShift(layers);
    joinDogfight(layers);
    return layers;
}

} // namespace tarvex
