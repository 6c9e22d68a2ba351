#include "scan_code_balance.h"

#include <regex>
#include <set>
#include <sstream>

namespace examples {

namespace {

/// Make codes of the keys without a prefix, in the rows of the keyboard's own table.
const std::set<std::string> plainKeys = {
    "1C", "32", "21", "23", "24", "2B", "34", "33", "43", "3B", "42", "4B", "3A", "31", "44", "4D", "15",
    "2D", "1B", "2C", "3C", "2A", "1D", "22", "35", "1A", "16", "1E", "26", "25", "2E", "36", "3D", "3E",
    "46", "45", "0E", "4E", "55", "5D", "54", "5B", "4C", "52", "41", "49", "4A", "76", "0D", "58", "29",
    "5A", "66", "12", "59", "14", "11", "05", "06", "04", "0C", "03", "0B", "83", "0A", "01", "09", "78",
    "07", "77", "7E", "7C", "7B", "79", "71", "70", "69", "72", "7A", "6B", "73", "74", "6C", "75", "7D"};
/// Make codes behind #E0; 12 is the fake shift around the grey keys.
const std::set<std::string> greyKeys = {"14", "11", "70", "71", "6C", "69", "7D", "7A",
                                        "75", "72", "6B", "74", "4A", "5A", "12", "7C"};
const std::string pauseKey = "#E1 #14 #77 #E1 #F0 #14 #F0 #77";

class KeyStream {
public:
    explicit KeyStream(const std::string& codes) : m_stream(codes) {}
    Problems problems()
    {
        for (std::string code; m_stream >> code;) take(code.substr(1));
        if (m_grey || m_break) m_problems.emplace_back("ends inside a code");
        for (const std::string& key : m_down) m_problems.push_back("left down: " + key);
        return m_problems;
    }

private:
    void take(const std::string& code)
    {
        if (code == "E0" && !m_grey && !m_break) {
            m_grey = true;
        } else if (code == "F0" && !m_break) {
            m_break = true;
        } else {
            key(code);
            m_grey = m_break = false;
        }
    }
    void key(const std::string& code)
    {
        if (!(m_grey ? greyKeys : plainKeys).contains(code)) m_problems.push_back("no key: " + code);
        const std::string name = (m_grey ? "E0 " : "") + code;
        const bool changed = m_break ? m_down.erase(name) == 1 : m_down.insert(name).second;
        if (!changed) m_problems.push_back((m_break ? "broken but not down: " : "made twice: ") + name);
    }

    std::istringstream m_stream;
    bool m_grey = false;
    bool m_break = false;
    std::set<std::string> m_down;
    Problems m_problems;
};

} // namespace

Problems rawFormProblems(const std::vector<std::string>& groups)
{
    static const std::regex form("#[0-9A-F]{2}( #[0-9A-F]{2})*");
    Problems problems;
    for (const std::string& group : groups)
        if (!std::regex_match(group, form)) problems.push_back("no raw codes: " + group);
    return problems;
}

Problems scanCodeProblems(const std::vector<std::string>& groups)
{
    std::string codes;
    for (const std::string& group : groups)
        if (group != pauseKey) codes += group + ' '; // the Pause key has no break
    return KeyStream(codes).problems();
}

} // namespace examples
