#include "scan_code_balance.h"

#include "safein/keys/key_table.h"

#include <regex>
#include <set>
#include <sstream>

namespace examples {

namespace {

const std::string pauseKey = "#E1 #14 #77 #E1 #F0 #14 #F0 #77";

/// A fake shift around a grey key counts like a key here: it must come up again too.
bool isKeyCode(const std::string& code, bool grey)
{
    const auto byte = static_cast<std::uint8_t>(std::stoul(code, nullptr, 16));
    return tarvex::keyOfCode(byte, grey) != nullptr || (grey && tarvex::isFakeShift(byte));
}

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
        if (!isKeyCode(code, m_grey)) m_problems.push_back("no key: " + code);
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
