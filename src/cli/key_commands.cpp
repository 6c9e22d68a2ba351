#include "cli/key_commands.h"

#include "cli/input.h"
#include "cli/unicode_text.h"
#include "safein/keys/key_strings.h"
#include "safein/keys/key_table.h"
#include "safein/keys/raw_decoder.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>

namespace tarvex::cli {

namespace {

/// As the settings number the joysticks.
constexpr std::string_view joysticks[] = {"f22", "flcs", "pfcs", "topgun", "fcs"};

PadState padState(const KeyOptions& options)
{
    const auto* const joystick = std::ranges::find(joysticks, options.joystick);
    return {.shift = options.shift,
            .ctrl = options.ctrl,
            .alt = options.alt,
            .numLock = options.numLock && options.extended,
            .UseShfKey = static_cast<std::int16_t>(options.noShf ? 0 : 1),
            .ApplyRAWTMnotes = static_cast<std::int16_t>(options.extended ? 1 : 0),
            .JoyName = static_cast<std::int16_t>(joystick - std::begin(joysticks))};
}

KeyStrings computed(std::int16_t index, PadState pad)
{
    KeyStrings strings;
    strings.LastKeyIndex = index;
    if (const Key* const key = keyAt(index)) pad.caption = key->labelWith(pad.shift);
    GetKeystrings(strings, pad);
    return strings;
}

std::string_view nameOf(std::int16_t index)
{
    const Key* const key = keyAt(index);
    return key == nullptr ? std::string_view() : key->name;
}

nlohmann::ordered_json jsonOf(const KeyStrings& strings)
{
    return {{"index", strings.LastKeyIndex}, {"name", nameOf(strings.LastKeyIndex)},
            {"syntax", strings.KeySyntax},   {"make", strings.KeyMake},
            {"break", strings.KeyBreak},     {"combined", strings.KeyCombined}};
}

std::string textOf(const KeyStrings& strings)
{
    return "syntax    " + strings.KeySyntax + "\nmake      " + strings.KeyMake + "\nbreak     " + strings.KeyBreak +
           "\ncombined  " + strings.KeyCombined + "\n";
}

/// A line of the list of all keys, its columns separated by tabs.
std::string rowOf(const KeyStrings& strings)
{
    return std::to_string(strings.LastKeyIndex) + '\t' + std::string(nameOf(strings.LastKeyIndex)) + '\t' +
           strings.KeySyntax + '\t' + strings.KeyMake + '\t' + strings.KeyBreak + '\n';
}

int printAll(const KeyOptions& options)
{
    const PadState pad = padState(options);
    auto json = nlohmann::ordered_json::array();
    std::string text;
    for (const Key& key : keyTable()) {
        const KeyStrings strings = computed(static_cast<std::int16_t>(key.index), pad);
        options.json ? json.push_back(jsonOf(strings)) : static_cast<void>(text += rowOf(strings));
    }
    print(options.json ? json.dump() + "\n" : text);
    return exitStatus::done;
}

/// A number is an index, whether there is a key for it or not; anything else is a name.
std::optional<std::int16_t> indexOf(const std::string& text)
{
    std::int16_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    if (error == std::errc() && end == text.data() + text.size()) return index;
    const Key* const key = keyNamed(text);
    if (key == nullptr) return std::nullopt;
    return static_cast<std::int16_t>(key->index);
}

int noSuchKey(const std::string& text)
{
    std::string shown;
    appendShownUtf8(shown, text);
    std::fprintf(stderr, "tarvexctl: there is no key %s\n", shown.c_str());
    return exitStatus::nothingToAnalyse;
}

std::string pieceOf(const std::string& text, const UnknownCode& code)
{
    std::string piece;
    appendShownUtf8(piece, std::string_view(text).substr(code.position, code.length));
    return piece;
}

nlohmann::ordered_json jsonOf(const DecodedRaw& raw, const std::string& text)
{
    auto json = nlohmann::ordered_json{{"events", nlohmann::ordered_json::array()},
                                       {"left_down", nlohmann::ordered_json::array()},
                                       {"unknown", nlohmann::ordered_json::array()}};
    for (const KeyEvent& event : raw.events)
        json["events"].push_back({{"key", keyAt(event.key)->distinctName()}, {"down", event.down}});
    for (const std::int16_t key : raw.leftDown) json["left_down"].push_back(keyAt(key)->distinctName());
    for (const UnknownCode& code : raw.unknown)
        json["unknown"].push_back({{"position", code.position}, {"text", pieceOf(text, code)}});
    return json;
}

std::string textOf(const DecodedRaw& raw)
{
    std::string text;
    for (const KeyEvent& event : raw.events) {
        text += keyAt(event.key)->distinctName();
        text += event.down ? " down\n" : " up\n";
    }
    if (raw.leftDown.empty()) return text;
    text += "left down:";
    for (const std::int16_t key : raw.leftDown) {
        text += ' ';
        text += keyAt(key)->distinctName();
    }
    return text + '\n';
}

void reportUnknown(const DecodedRaw& raw, const std::string& text)
{
    constexpr std::size_t mostLines = 20;
    for (std::size_t i = 0; i < std::min(mostLines, raw.unknown.size()); ++i) {
        const UnknownCode& code = raw.unknown[i];
        std::fprintf(stderr, "tarvexctl: no key has the code %s at position %zu\n", pieceOf(text, code).c_str(),
                     code.position);
    }
    if (raw.unknown.size() > mostLines)
        std::fprintf(stderr, "tarvexctl: and %zu more\n", raw.unknown.size() - mostLines);
}

} // namespace

int keyCommand(const KeyOptions& options)
{
    if (options.all) return printAll(options);
    const std::optional<std::int16_t> index = indexOf(options.key);
    if (!index) return noSuchKey(options.key);
    const KeyStrings strings = computed(*index, padState(options));
    print(options.json ? jsonOf(strings).dump() + "\n" : textOf(strings));
    return keyAt(*index) == nullptr ? noSuchKey(options.key) : exitStatus::done;
}

int rawCommand(const RawOptions& options)
{
    const std::string text = options.text == "-" ? readInput(options.text) : options.text;
    const DecodedRaw raw = decodeRaw(text);
    print(options.json ? jsonOf(raw, text).dump() + "\n" : textOf(raw));
    reportUnknown(raw, text);
    return raw.unknown.empty() ? exitStatus::done : exitStatus::unknownCode;
}

} // namespace tarvex::cli
