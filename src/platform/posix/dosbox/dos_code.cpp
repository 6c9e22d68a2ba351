#include "platform/posix/dosbox/dos_code.h"

namespace tarvex {

void DosCode::bytes(std::initializer_list<int> values)
{
    for (const int value : values) m_bytes += static_cast<char>(value);
}

void DosCode::word(unsigned value) { bytes({static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF)}); }

void DosCode::address(const std::string& label, unsigned offset)
{
    m_addresses.push_back({m_bytes.size(), label, offset});
    word(0);
}

void DosCode::jump(const std::string& label)
{
    m_jumps.push_back({m_bytes.size(), label, 0});
    bytes({0});
}

std::string DosCode::finished() const
{
    std::string file = m_bytes;
    for (const Use& use : m_addresses) {
        const unsigned value = m_labels.at(use.label) + use.offset;
        file[use.at] = static_cast<char>(value & 0xFF);
        file[use.at + 1] = static_cast<char>(value >> 8 & 0xFF);
    }
    for (const Use& use : m_jumps) {
        const unsigned behind = static_cast<unsigned>(use.at) + 0x101;
        file[use.at] = static_cast<char>(m_labels.at(use.label) - behind);
    }
    return file;
}

} // namespace tarvex
