#pragma once

#include <cstddef>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Machine code and data of a .COM file, which DOS loads at 100h. A label may be used before it is set.
class DosCode {
public:
    void bytes(std::initializer_list<int> values);
    void text(std::string_view text) { m_bytes += text; }
    void word(unsigned value);
    /// The address that a label gets, plus `offset`.
    void address(const std::string& label, unsigned offset = 0);
    /// The distance from behind this byte to a label, as short jumps have it.
    void jump(const std::string& label);
    /// Here, or at an address.
    void label(const std::string& name) { m_labels[name] = place(); }
    void label(const std::string& name, unsigned address) { m_labels[name] = address; }
    unsigned place() const { return static_cast<unsigned>(m_bytes.size()) + 0x100; }

    /// The file. Throws std::out_of_range for a label that was never set.
    std::string finished() const;

private:
    struct Use {
        std::size_t at;
        std::string label;
        unsigned offset;
    };
    std::string m_bytes;
    std::vector<Use> m_addresses;
    std::vector<Use> m_jumps;
    std::map<std::string, unsigned> m_labels;
};

} // namespace tarvex
