#include "statements.h"

#include "controller_text.h"
#include "vocabulary.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <regex>
#include <utility>
#include <vector>

namespace examples {

namespace {

using Words = std::vector<std::string>;

bool everyWord(const Words& words, std::size_t from, const std::function<bool(const std::string&)>& holds)
{
    return words.size() >= from && std::all_of(words.begin() + static_cast<std::ptrdiff_t>(from), words.end(), holds);
}

/// Statements of numbers and keys: the word, its type, its fields behind the type, and how many of them are numbers.
struct FieldForm {
    std::size_t fields;
    std::size_t numbers;
};
const std::map<std::pair<std::string, std::string>, FieldForm> fieldForms = {
    {{"RNG", "1"}, {3, 1}},  {{"RNG", "2"}, {4, 1}}, {{"ANT", "2"}, {6, 1}},  {{"THR", "1"}, {8, 2}},
    {{"JSX", "1"}, {4, 1}},  {{"JSX", "2"}, {6, 1}}, {{"JSX", "3"}, {3, 0}},  {{"JSY", "1"}, {4, 1}},
    {{"JSY", "2"}, {6, 1}},  {{"JSY", "3"}, {3, 0}}, {{"RDDR", "1"}, {4, 1}}, {{"RDDR", "2"}, {6, 1}},
    {{"RDDR", "3"}, {3, 0}},
};

/// THR 2: two numbers of steps, and a character for each step.
bool isThrottleOfCharacters(const Words& words)
{
    if (words.size() < 5 || words[0] != "THR" || words[1] != "2" || !isNumber(words[2]) || !isNumber(words[3]))
        return false;
    const std::size_t steps = std::stoul(words[2]) + std::stoul(words[3]);
    return words.size() == 4 + steps && everyWord(words, 4, isKey);
}

bool isFieldStatement(const Words& words, const std::set<std::string>& macros)
{
    if (isThrottleOfCharacters(words)) return true;
    const auto form = words.size() < 2 ? fieldForms.end() : fieldForms.find({words[0], words[1]});
    if (form == fieldForms.end() || words.size() != 2 + form->second.fields) return false;
    const std::size_t firstKey = 2 + form->second.numbers;
    return std::all_of(words.begin() + 2, words.begin() + static_cast<std::ptrdiff_t>(firstKey), isNumber) &&
           everyWord(words, firstKey, [&](const std::string& word) { return isKey(word) || macros.contains(word); });
}

bool isLogicTerm(const std::string& statement)
{
    static const std::regex functions(R"(PULSE\(\d+ \d+\)|DELAY\(\d+\)|CMP(LT|GT)\((ANT|RNG|THR|RDDR|JSX|JSY) \d+\))");
    static const std::regex brackets("[()]");
    const std::string plain = std::regex_replace(std::regex_replace(statement, functions, "TIMED"), brackets, " ");
    const Words words = wordsOf(plain);
    return words.size() > 2 && isLogicLine(words[1]) && everyWord(words, 2, [](const std::string& word) {
               return isSwitch(word) || isLogicLine(word) || word == "AND" || word == "OR" || word == "NOT" ||
                      word == "TIMED";
           });
}

} // namespace

bool isKnownStatement(const std::string& statement, const std::set<std::string>& macros)
{
    static const std::regex port("PortB[1-4] IS ([A-Z0-9]+)");
    static const std::regex single("SWAPTG|RATE [0-9]+|MDEF [A-Za-z0-9]{1,8}");
    std::smatch match;
    if (std::regex_match(statement, match, port)) return isSwitch(match[1]);
    if (std::regex_match(statement, single)) return true;
    const Words words = wordsOf(statement);
    if (words.empty()) return false;
    if (words[0] == "USE") return statement.size() > 4 && isUseOption(statement.substr(4));
    if (words[0] == "DEF") return isLogicTerm(statement);
    if (words[0] != "BTN") return isFieldStatement(words, macros);
    return words.size() > 1 && (isSwitch(words[1]) || isLogicLine(words[1])) &&
           everyWord(words, 2, [&](const std::string& word) {
               return isSlashCode(word) || isKey(word) || macros.contains(word);
           });
}

} // namespace examples
