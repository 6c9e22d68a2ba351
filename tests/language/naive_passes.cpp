#include "language/naive_passes.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <utility>

namespace tarvex {

namespace {

using std::int16_t;
using std::int64_t;

class NaiveRun {
public:
    NaiveRun(NaiveColouring& result, const Settings& settings) : m(result), m_settings(settings) {}

    void run(const ColourPass& pass)
    {
        m_pass = &pass;
        double caret = 0;
        m_reads[0] = m_reads[1] = "";
        std::vector<Turn> turns{{caret, m_reads[0], m_reads[1]}};
        while (true) {
            const int64_t match = findSelecting(pass.word, caret, pass.options);
            const auto found = static_cast<int16_t>(match);
            if (found == -1) return;
            const double next = act(found);
            const bool turnedBack = realStart(next) <= realStart(caret);
            caret = next;
            const Turn turn{caret, m_reads[0], m_reads[1]};
            if (turnedBack && std::find(turns.begin(), turns.end(), turn) != turns.end()) {
                m.holds.push_back({std::string(pass.word), lineOf(match) + 1});
                return;
            }
            if (turnedBack) turns.push_back(turn);
        }
    }

private:
    struct Turn {
        double caret;
        std::string first;
        std::string second;
        bool operator==(const Turn&) const = default;
    };

    static double realStart(double caret) { return caret < 0 ? caret + 65536 : caret; }
    int64_t length() const { return static_cast<int64_t>(m.text.size()); }
    char at(int64_t position) const { return m.text[static_cast<std::size_t>(position)]; }

    // ---- the pane ---------------------------------------------------------------------------------------------------

    static bool isWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }
    bool cutsWord(int64_t edge) const
    {
        return edge > 0 && edge < length() && isWordCharacter(at(edge - 1)) && isWordCharacter(at(edge));
    }
    bool matches(std::string_view word, int64_t position, int options) const
    {
        for (std::size_t i = 0; i < word.size(); ++i) {
            const auto a = static_cast<unsigned char>(at(position + static_cast<int64_t>(i)));
            const auto b = static_cast<unsigned char>(word[i]);
            if ((options & 4) != 0 ? a != b : std::tolower(a) != std::tolower(b)) return false;
        }
        const int64_t end = position + static_cast<int64_t>(word.size());
        return (options & 2) == 0 || (!cutsWord(position) && !cutsWord(end));
    }
    int64_t findSelecting(std::string_view word, double caret, int options)
    {
        const auto size = static_cast<int64_t>(word.size());
        for (auto p = static_cast<int64_t>(realStart(caret)); p + size <= length(); ++p) {
            if (!matches(word, p, options)) continue;
            m_begin = p;
            m_end = p + size;
            return p;
        }
        return -1;
    }
    void span(const std::string& set)
    {
        while (m_end < length() && set.find(at(m_end)) == std::string::npos) ++m_end;
    }
    void longer() { m_end = std::min(m_end + 1, length()); }
    void caretTo(double position)
    {
        if (position < 0) {
            ++m.failures;
            return;
        }
        m_begin = m_end = std::min(static_cast<int64_t>(position), length());
    }
    int64_t lineOf(int64_t position) const
    {
        if (position < 0) position = m_begin;
        position = std::min(position, length());
        return std::count(m.text.begin(), m.text.begin() + position, '\n');
    }
    void paint(Colour colour)
    {
        for (int64_t i = m_begin; i < m_end; ++i) m.colours[static_cast<std::size_t>(i)] = colour;
    }
    std::string mid(int which, int64_t position)
    {
        if (position < 1)
            ++m.failures;
        else
            m_reads[which] = position <= length() ? std::string(1, at(position - 1)) : "";
        return m_reads[which];
    }

    // ---- the actions ------------------------------------------------------------------------------------------------

    /// Where the search goes on.
    double act(int16_t p)
    {
        const auto n = static_cast<int64_t>(m_pass->word.size());
        const Colour own = m_settings.*(m_pass->colour);
        const Colour misc = m_settings.MiscellaneousColour;
        const Colour btn = m_settings.BTNColour;
        const auto behind = [&] { return static_cast<double>(p + (m_end - m_begin)); };
        switch (m_pass->action) {
        case PassAction::Head:
        case PassAction::TemplateDef: {
            longer();
            if (m_pass->action == PassAction::Head)
                paint(btn);
            else if (mid(0, p + 4) == " ")
                paint(misc);
            const double next = behind();
            caretTo(next);
            span(" ");
            paint(btn);
            return next;
        }
        case PassAction::Slash: {
            const std::string a = mid(0, p);
            const std::string b = mid(1, p + 2);
            if (a == " " && b != "/" && b != " " && b != "\r") {
                longer();
                paint(own);
            }
            if (lineOf(p - 1) != lineOf(p) && b != "/") {
                longer();
                paint(own);
            }
            return behind();
        }
        case PassAction::Bracket: {
            paint(own);
            const double inside = behind();
            caretTo(inside);
            const auto closed = static_cast<int16_t>(findSelecting(")", inside, 0));
            paint(own);
            return closed + 1;
        }
        case PassAction::Blank:
            if (mid(0, p + n + 1) == " ") paint(own);
            return behind();
        case PassAction::Plain:
            paint(own);
            return behind();
        case PassAction::Parenthesis: {
            const std::string a = mid(0, p + 6);
            const std::string b = mid(1, p + 7);
            if (a == "(" || b == "(") paint(own);
            return behind();
        }
        case PassAction::SingleParenthesis:
            if (mid(0, p + 6) == "(") paint(own);
            return behind();
        case PassAction::Port: {
            span("S");
            longer();
            paint(misc);
            const double next = behind();
            caretTo(next);
            m_end = m_begin;
            longer();
            span("\r\n");
            paint(btn);
            return next;
        }
        case PassAction::Comment: {
            paint(own);
            const double next = behind();
            caretTo(next);
            span("\r\n");
            paint(own);
            return next;
        }
        }
        return 0;
    }

    NaiveColouring& m;
    const Settings& m_settings;
    const ColourPass* m_pass = nullptr;
    int64_t m_begin = 0; ///< of the selection
    int64_t m_end = 0;
    std::string m_reads[2];
};

} // namespace

NaiveColouring naiveColouring(const std::string& text, const Settings& settings, std::span<const ColourPass> passes)
{
    NaiveColouring result{text, std::vector<Colour>(text.size(), 0), {}, 0};
    NaiveRun run(result, settings);
    for (const ColourPass& pass : passes) run.run(pass);
    return result;
}

} // namespace tarvex
