#include "vocabulary.h"

#include <cctype>
#include <regex>
#include <set>

namespace examples {

namespace {

bool matches(const std::string& word, const std::regex& form) { return std::regex_match(word, form); }

const std::set<std::string> keyNames = {
    "ESC",     "TAB",     "CAPS",    "SPC",    "ENT",      "BSP",      "INS",      "DEL",      "HOME",
    "END",     "PGUP",    "PGDN",    "UAROW",  "DAROW",    "LAROW",    "RAROW",    "NUML",     "SCRLCK",
    "KP.",     "KP+",     "KP-",     "KP*",    "KP/",      "KPENT",    "LSFT",     "RSFT",     "LCTL",
    "RCTL",    "LALT",    "RALT",    "CTL",    "ALT",      "SHF",      "AUXINS",   "AUXDEL",   "AUXEND",
    "AUXHOME", "AUXPGUP", "AUXPGDN", "AUXENT", "AUXUAROW", "AUXDAROW", "AUXLAROW", "AUXRAROW", "AUX/"};

} // namespace

bool isKey(const std::string& word)
{
    static const std::regex numbered("F([1-9]|1[0-2])|KP[0-9]");
    const bool character = word.size() == 1 && std::isgraph(static_cast<unsigned char>(word[0])) != 0;
    return character || keyNames.contains(word) || matches(word, numbered);
}

bool isSlashCode(const std::string& word)
{
    static const std::regex form("/[UMDIOPRTNHAFQ]");
    return matches(word, form);
}

bool isSwitch(const std::string& word)
{
    static const std::regex form(
        "S[1-4]|TG[12]|T([1-9]|1[0-4])|H[1-4]([UDLRM]|[UD][LR])|H[UDLRM]|TG|UB|MB|LB|[1-6]|MT");
    return matches(word, form);
}

bool isLogicLine(const std::string& word)
{
    static const std::regex form("X([1-9]|[1-3][0-9]|4[0-8])");
    return matches(word, form);
}

bool isUseOption(const std::string& words)
{
    static const std::regex form("TQS|WCS|RCS|NOMOUSE|NOTHR|NORDDR|FCLK|MTYPE (A[1-5]|[BC]([1-9]|10))");
    return matches(words, form);
}

bool isNumber(const std::string& word)
{
    static const std::regex form("[0-9]+");
    return matches(word, form);
}

} // namespace examples
