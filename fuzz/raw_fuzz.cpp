// Any bytes as raw codes: pieces lie inside the text and in order, what stays down went down last, and what the decoder
// reads of a key's own codes is that key.

#include "safein/keys/key_table.h"
#include "safein/keys/raw_decoder.h"

#include <cstdlib>
#include <map>

namespace {

using namespace tarvex;

void require(bool holds)
{
    if (!holds) std::abort();
}

void requireLeftDown(const DecodedRaw& raw)
{
    std::map<std::int16_t, bool> down;
    for (const KeyEvent& event : raw.events) {
        require(keyAt(event.key) != nullptr);
        down[event.key] = event.down;
    }
    std::size_t count = 0;
    for (const auto& [key, isDown] : down) count += isDown ? 1 : 0;
    require(count == raw.leftDown.size());
    for (const std::int16_t key : raw.leftDown) require(down.at(key));
}

void requireUnknown(const DecodedRaw& raw, std::size_t size)
{
    std::size_t end = 0;
    for (const UnknownCode& code : raw.unknown) {
        require(code.length > 0 && code.position >= end && code.position + code.length <= size);
        end = code.position + code.length;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const DecodedRaw raw = decodeRaw(text);
    requireLeftDown(raw);
    requireUnknown(raw, size);
    constexpr std::size_t longestLine = 2000;
    require(rawSummary(text).size() < longestLine);

    // Behind anything, a key's own codes are read as that key.
    const Key& key = keyTable()[size % keyTable().size()];
    const DecodedRaw more = decodeRaw("RAW (" + std::string(text.substr(0, text.find(')'))) + " x " +
                                      std::string(key.make) + " " + breakCode(key) + ")");
    require(!more.events.empty() && more.events.back() == KeyEvent{static_cast<std::int16_t>(key.index), false});
    return 0;
}
