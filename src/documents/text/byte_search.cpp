#include "documents/text/byte_search.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace tarvex {
namespace {

using Bytes = unsigned char __attribute__((vector_size(16)));
constexpr std::size_t blockSize = sizeof(Bytes);

/// How common a byte is in controller files; the rarest bytes of a word are the ones to look for.
constexpr std::array<unsigned char, 256> commonness = [] {
    std::array<unsigned char, 256> ranks{};
    constexpr std::string_view commonFirst = " etaoinsrhld\r\ncumfpgwybv0123456789_kxjqz()/=#,;.-+";
    for (std::size_t i = 0; i < commonFirst.size(); ++i) {
        const auto rank = static_cast<unsigned char>(255 - 4 * i);
        const auto byte = static_cast<unsigned char>(commonFirst[i]);
        ranks[byte] = rank;
        if (byte >= 'a' && byte <= 'z') ranks[byte - 'a' + 'A'] = rank;
    }
    return ranks;
}();

/// Offsets in the word of its two rarest bytes; the word has at least two.
struct Anchors {
    std::size_t first = 0;
    std::size_t second = 1;
};

Anchors anchorsOf(std::string_view wanted)
{
    const auto rank = [&](std::size_t i) { return commonness[static_cast<unsigned char>(wanted[i])]; };
    Anchors best = rank(0) <= rank(1) ? Anchors{0, 1} : Anchors{1, 0};
    for (std::size_t i = 2; i < wanted.size(); ++i) {
        if (rank(i) < rank(best.first)) {
            best = {i, best.first};
        } else if (rank(i) < rank(best.second)) {
            best.second = i;
        }
    }
    return best;
}

Bytes load(const char* from)
{
    Bytes bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

bool any(Bytes bytes)
{
    std::array<std::uint64_t, 2> halves;
    std::memcpy(halves.data(), &bytes, sizeof bytes);
    return (halves[0] | halves[1]) != 0;
}

/// Looks for the word at the positions from `at` up to `end`, where all of it is in the text.
class WordSearch {
public:
    WordSearch(const char* text, std::string_view wanted)
        : m_text(text), m_wanted(wanted), m_anchors(anchorsOf(wanted)),
          m_first(Bytes{} + static_cast<unsigned char>(wanted[m_anchors.first])),
          m_second(Bytes{} + static_cast<unsigned char>(wanted[m_anchors.second]))
    {
    }

    std::size_t run(std::size_t at, std::size_t end) const
    {
        constexpr std::size_t unrolled = 4;
        for (; at + unrolled * blockSize <= end; at += unrolled * blockSize) {
            const Bytes hits = (candidates(at) | candidates(at + blockSize)) |
                               (candidates(at + 2 * blockSize) | candidates(at + 3 * blockSize));
            if (!any(hits)) continue;
            const std::size_t found = oneByOne(at, at + unrolled * blockSize);
            if (found != std::string_view::npos) return found;
        }
        for (; at < end; ++at) {
            if (standsAt(at)) return at;
        }
        return std::string_view::npos;
    }

private:
    Bytes candidates(std::size_t at) const
    {
        const auto first = load(m_text + at + m_anchors.first) == m_first;
        const auto second = load(m_text + at + m_anchors.second) == m_second;
        return reinterpret_cast<Bytes>(first & second);
    }

    bool standsAt(std::size_t at) const
    {
        return m_text[at + m_anchors.first] == m_wanted[m_anchors.first] &&
               std::memcmp(m_text + at, m_wanted.data(), m_wanted.size()) == 0;
    }

    std::size_t oneByOne(std::size_t at, std::size_t end) const
    {
        for (; at < end; at += blockSize) {
            const Bytes hits = candidates(at);
            if (!any(hits)) continue;
            for (std::size_t lane = 0; lane < blockSize; ++lane) {
                if (hits[lane] != 0 && standsAt(at + lane)) return at + lane;
            }
        }
        return std::string_view::npos;
    }

    const char* m_text;
    std::string_view m_wanted;
    Anchors m_anchors;
    Bytes m_first;
    Bytes m_second;
};

} // namespace

std::size_t findBytes(std::string_view text, std::string_view wanted, std::size_t from)
{
    if (from > text.size() || text.size() - from < wanted.size()) return text.npos;
    if (wanted.size() == 1) return text.find(wanted[0], from);
    return WordSearch(text.data(), wanted).run(from, text.size() - wanted.size() + 1);
}

} // namespace tarvex
