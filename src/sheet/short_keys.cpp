#include "sheet/short_keys.h"

#include "platform/windows1252.h"
#include "safein/keys/key_table.h"
#include "safein/keys/raw_decoder.h"

#include <algorithm>
#include <iterator>

namespace tarvex {

namespace {

constexpr std::size_t longestKeys = 30;

/// What the sheet writes for a word that is held with the next one, and what it leaves out.
struct HeldKey {
    std::string_view word;
    std::string_view shown;
};
constexpr HeldKey heldKeys[] = {{"CTL", "Ctrl+"}, {"ALT", "Alt+"}, {"SHF", "Shift+"}};
constexpr std::string_view leftOut[] = {"/N", "/H", "/A", "/F", "/Q", "/P"};

bool isModifierKey(int index) { return index >= keyIndex::leftShift && index <= keyIndex::rightAlt; }

/// "KP7" and what is written as itself are clear; "AUXUAROW" is not.
std::string capOf(const Key& key)
{
    const std::string_view name = key.distinctName();
    const bool clear = name.size() == 1 || (name.starts_with("KP") && name.size() == 3);
    return std::string(clear ? name : key.spoken);
}

std::string capNamed(std::string_view word)
{
    const auto keys = keyTable();
    const auto key = std::ranges::find_if(
        keys, [=](const Key& one) { return !word.empty() && (one.name == word || one.f22Name == word); });
    return key == keys.end() ? utf8FromWindows1252(word) : capOf(*key);
}

/// The keys of a raw statement, each with those that are held meanwhile. A statement that only lets go has none.
std::vector<std::string> rawKeys(std::string_view statement)
{
    const DecodedRaw decoded = decodeRaw(statement);
    if (!decoded.unknown.empty()) return {"raw codes"};
    std::vector<std::string> keys;
    std::vector<std::int16_t> held;
    bool alone = false; // what is held was not yet held for another key
    for (const KeyEvent& event : decoded.events) {
        const Key* const key = keyAt(event.key);
        if (key == nullptr) continue;
        if (!isModifierKey(event.key)) {
            if (!event.down) continue;
            std::string text;
            for (const std::int16_t one : held) text += std::string(keyAt(one)->label) + "+";
            keys.push_back(text + capOf(*key));
            alone = false;
        } else if (event.down) {
            held.push_back(event.key);
            alone = true;
        } else if (std::erase(held, event.key) > 0 && alone) {
            keys.push_back(capOf(*key));
            alone = false;
        }
    }
    if (alone && !held.empty()) keys.push_back(capOf(*keyAt(held.back())));
    return keys;
}

/// Puts the shown words together.
class ShownWords {
public:
    /// Words that are no macro are of this kind. `counted`: a word that repeats the one before is counted.
    ShownWords(SheetWord::Kind kind, bool counted) : m_kind(kind), m_counted(counted) {}

    void read(std::span<const std::string_view> words, const MacroKeys& macros)
    {
        for (std::size_t at = 0; at < words.size(); ++at) {
            const auto macro = macros.find(words[at]);
            if (macro != macros.end())
                addMacro(*macro);
            else if (isRaw(words, at))
                addRaw(words, at);
            else
                addWord(words[at]);
        }
        addHeldAlone();
    }
    std::vector<SheetWord> take() { return std::move(m_words); }

private:
    static bool isRaw(std::span<const std::string_view> words, std::size_t at)
    {
        const std::string upper = upperWindows1252(words[at]);
        return upper.starts_with("RAW(") || (upper == "RAW" && at + 1 < words.size() && words[at + 1].starts_with('('));
    }
    /// `at` becomes the word with the closing bracket.
    void addRaw(std::span<const std::string_view> words, std::size_t& at)
    {
        std::string statement(words[at]);
        while (words[at].find(')') == std::string_view::npos && at + 1 < words.size())
            statement += " " + std::string(words[++at]);
        for (const std::string& key : rawKeys(statement)) add(key, m_kind);
    }
    void addMacro(const MacroKeys::value_type& macro)
    {
        add(utf8FromWindows1252(macro.first), SheetWord::Kind::Macro);
        const std::string& keys = macro.second;
        for (std::size_t at = 0; at < keys.size();) { // a word each, so that lines can break between them
            const std::size_t end = std::min(keys.find(' ', at), keys.size());
            m_words.push_back({keys.substr(at, end - at), SheetWord::Kind::Keys});
            at = end + 1;
        }
    }
    void addWord(std::string_view word)
    {
        const std::string upper = upperWindows1252(word);
        const auto* const held = std::ranges::find(heldKeys, upper, &HeldKey::word);
        if (held != std::end(heldKeys)) {
            m_held += held->shown;
        } else if (upper == "/T") {
            m_separator = "|";
        } else if (upper == "/R") {
            m_separator = "/R";
        } else if (std::ranges::find(leftOut, upper) == std::end(leftOut) && !upper.starts_with("DLY(")) {
            add(capNamed(word), m_kind);
        }
    }
    void addHeldAlone()
    {
        if (m_held.empty()) return;
        const std::string keys = m_held.substr(0, m_held.size() - 1);
        m_held.clear();
        add(keys, m_kind);
    }
    void add(const std::string& shown, SheetWord::Kind kind)
    {
        const bool separated = !m_separator.empty() && (m_separator != "|" || !m_words.empty());
        if (separated) m_words.push_back({m_separator, m_kind});
        m_separator.clear();
        const std::string text = m_held + shown;
        m_held.clear();
        if (m_counted && !separated && !m_words.empty() && text == m_last) {
            m_words.back().text = text + "×" + std::to_string(++m_times);
            return;
        }
        m_words.push_back({text, kind});
        m_last = text;
        m_times = 1;
    }

    SheetWord::Kind m_kind;
    bool m_counted;
    std::vector<SheetWord> m_words;
    std::string m_held;      ///< "Ctrl+", before the next word
    std::string m_separator; ///< shown only if a word follows
    std::string m_last;
    int m_times = 0;
};

} // namespace

std::string shortKeys(std::span<const std::string_view> words)
{
    ShownWords shown(SheetWord::Kind::Keys, true);
    shown.read(words, {});
    std::string text;
    for (const SheetWord& word : shown.take()) text += (text.empty() ? "" : " ") + word.text;
    if (utf8Length(text) <= longestKeys) return text;
    text = utf8Left(text, longestKeys);
    return text.substr(0, text.rfind(' ')) + " …";
}

std::vector<SheetWord> shortWords(std::span<const std::string_view> words, const MacroKeys& macros)
{
    ShownWords shown(SheetWord::Kind::Plain, false);
    shown.read(words, macros);
    return shown.take();
}

} // namespace tarvex
