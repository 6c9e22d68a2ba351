#include "language/pass_runner.h"

#include <array>
#include <set>
#include <tuple>
#include <utility>

namespace tarvex {

namespace {

constexpr std::string_view lineEnd = "\r\n";

/// Counts the length of the text, an end and a beginning.
int asProgress(std::size_t length) { return static_cast<int>(length) + 1; }

class Runner {
public:
    explicit Runner(const PassRun& run)
        : m_run(run), m_pane(run.pane), m_textLength(static_cast<std::int64_t>(run.pane.TextLength()))
    {
    }

    void run(const ColourPass& pass)
    {
        begin(pass);
        const bool held = search();
        if (held) reportHold();
        if (!m_run.mum) return;
        if (pass.progress == passProgress::byPosition) {
            m_run.mum->ProgressBar1.Value = 0;
        } else if (pass.progress != passProgress::asBefore) {
            m_run.mum->ProgressBar1.Value = pass.progress;
        }
    }

private:
    /// All that decides how a pass goes on.
    using State = std::tuple<float, std::string_view, std::string_view>;
    State state() const { return {m_run.position, m_read[0], m_read[1]}; }

    void begin(const ColourPass& pass)
    {
        m_pass = &pass;
        m_run.position = 0;
        m_read = {};
        m_painted = {};
        if (!m_run.mum) return;
        if (!pass.status.empty()) m_run.mum->StatusBar.Panels(panel::progress).Text = std::string(pass.status);
        showKeywordProgress(pass.progress != passProgress::byPosition);
    }

    /// The keywords count by passes, all others by positions.
    void showKeywordProgress(bool keywords)
    {
        if (keywords == m_keywords) return;
        m_keywords = keywords;
        ProgressBar& bar = m_run.mum->ProgressBar1;
        bar.Min = 0;
        bar.Max = keywords ? passProgress::keywords : asProgress(m_pane.TextLength());
        if (!keywords) bar.Value = 0;
    }

    /// Whether the pass is held. Only a pass that was turned back can come to a state twice.
    bool search()
    {
        std::set<State> turns{state()};
        while (find()) {
            const float from = searchStart();
            act();
            if (searchStart() <= from && !turns.insert(state()).second) return true;
        }
        return false;
    }

    /// The position that the next search really starts at: Find takes a negative one for one in the upper half.
    float searchStart() const
    {
        constexpr float positions = 65536;
        return m_run.position < 0 ? m_run.position + positions : m_run.position;
    }

    bool find()
    {
        m_match = m_pane.Find(m_pass->word, static_cast<std::int64_t>(m_run.position), m_textLength, m_pass->options);
        m_found = static_cast<std::int16_t>(m_match);
        if (m_run.mum && m_pass->progress == passProgress::byPosition) m_run.mum->ProgressBar1.Value = m_found + 1;
        return m_found != -1;
    }

    void reportHold()
    {
        const bool first = !std::exchange(m_wasHeld, true);
        if (m_run.held) m_run.held({m_pass->word, m_pane.GetLineFromChar(m_match) + 1, first});
    }

    // ---- the actions; the match is selected -------------------------------------------------------------------------

    void act()
    {
        switch (m_pass->action) {
        case PassAction::Head:
            return head();
        case PassAction::Slash:
            return slash();
        case PassAction::Bracket:
            return bracket();
        case PassAction::Blank:
            return blank();
        case PassAction::Plain:
            return plain();
        case PassAction::Parenthesis:
            return parenthesis(read(0, m_found + afterFiveLetters), read(1, m_found + afterFiveLetters + 1));
        case PassAction::SingleParenthesis:
            return parenthesis(read(0, m_found + afterFiveLetters), {});
        case PassAction::Port:
            return port();
        case PassAction::Comment:
            return comment();
        case PassAction::TemplateDef:
            return templateDef();
        }
    }

    void head()
    {
        extend();
        paint(m_pass->colour);
        goOnBehindSelection();
        paintOnUpTo(" ");
    }

    void slash()
    {
        const std::string_view before = read(0, m_found);
        const std::string_view after = read(1, m_found + 2);
        const auto paintPair = [&] {
            extend();
            paint(m_pass->colour);
        };
        if (before == " " && after != "/" && after != " " && after != "\r") paintPair();
        if (m_pane.GetLineFromChar(m_found - 1) != m_pane.GetLineFromChar(m_found) && after != "/") paintPair();
        goOnBehindSelection();
    }

    void bracket()
    {
        paint(m_pass->colour);
        goOnBehindSelection();
        moveCaretHere();
        const auto closed =
            static_cast<std::int16_t>(m_pane.Find(")", static_cast<std::int64_t>(m_run.position), m_textLength));
        paint(m_pass->colour); // without a ")" the selection is still the caret
        m_run.position = static_cast<float>(closed + 1);
    }

    void blank()
    {
        const auto length = static_cast<std::int64_t>(m_pass->word.size());
        if (read(0, m_found + length + 1) == " ") paint(m_pass->colour);
        goOnBehindSelection();
    }

    void plain()
    {
        paint(m_pass->colour);
        goOnBehindSelection();
    }

    void parenthesis(std::string_view after, std::string_view onePlaceFurther)
    {
        if (after == "(" || onePlaceFurther == "(") paint(m_pass->colour);
        goOnBehindSelection();
    }

    void port()
    {
        m_pane.Span("S", true, true);
        extend();
        paint(m_pass->colour);
        goOnBehindSelection();
        moveCaretHere();
        m_pane.setSelLength(1);
        m_pane.Span(lineEnd, true, true);
        paint(&Settings::BTNColour);
    }

    void comment()
    {
        paint(m_pass->colour);
        goOnBehindSelection();
        paintOnUpTo(lineEnd);
    }

    void templateDef()
    {
        extend();
        const auto length = static_cast<std::int64_t>(m_pass->word.size());
        if (read(0, m_found + length + 1) == " ") paint(&Settings::MiscellaneousColour);
        goOnBehindSelection();
        paintOnUpTo(" ");
    }

    // ---- what they are made of --------------------------------------------------------------------------------------

    void paint(Colour Settings::*colour) { m_pane.setSelColor(m_run.settings.*colour); }
    void extend() { m_pane.setSelLength(m_pane.SelLength() + 1); }
    void goOnBehindSelection() { m_run.position = static_cast<float>(m_found + m_pane.SelLength()); }

    /// Paints from here up to a character of the set, which is the same for the whole pass. Skips what the pass has
    /// painted already: otherwise many matches on one long line would cost the square of its length.
    void paintOnUpTo(std::string_view set)
    {
        moveCaretHere();
        const std::int64_t begin = m_pane.SelStart();
        if (begin < m_painted.begin || begin + m_pane.SelLength() > m_painted.end) {
            m_pane.Span(set, true, true);
            paint(m_pass->colour);
            m_painted.end = m_pane.SelStart() + m_pane.SelLength();
        } else if (m_pane.SelLength() > 0) {
            paint(m_pass->colour); // the match, still selected, may have got another colour since
        }
        m_painted.begin = begin; // a word before it may be painted over
    }

    /// A position that has turned negative is refused, and the selection stays.
    void moveCaretHere()
    {
        static const RuntimeError refused(ErrorCode::InvalidPropertyValue, "Invalid property value");
        if (m_run.position < 0) return m_run.step.fail(refused);
        m_pane.setSelStart(static_cast<std::int64_t>(m_run.position));
    }

    /// The character at a position that counts from 1, nothing behind the text. In front of it there is none to read:
    /// that fails, and the place keeps what it held from the match before.
    std::string_view read(std::size_t place, std::int64_t position)
    {
        static const RuntimeError noSuchCall(ErrorCode::InvalidCall, "Invalid procedure call or argument");
        if (position < 1) {
            m_run.step.fail(noSuchCall);
            return m_read[place];
        }
        const std::string_view text = m_pane.Text();
        const auto at = static_cast<std::size_t>(position - 1);
        m_read[place] = at < text.size() ? text.substr(at, 1) : std::string_view();
        return m_read[place];
    }

    static constexpr std::int64_t afterFiveLetters = 6;

    const PassRun& m_run;
    Pane& m_pane;
    std::int64_t m_textLength;
    const ColourPass* m_pass = nullptr;
    std::int64_t m_match = -1; ///< where it really stands
    std::int16_t m_found = -1; ///< what the pass makes of it
    std::array<std::string_view, 2> m_read;
    struct Range {
        std::int64_t begin = 0;
        std::int64_t end = -1;
    };
    Range m_painted; ///< by paintOnUpTo in this pass, up to a character of its set
    bool m_keywords = false;
    bool m_wasHeld = false;
};

} // namespace

void runPasses(const PassRun& run, std::span<const ColourPass> passes)
{
    Runner runner(run);
    for (const ColourPass& pass : passes) {
        run.step([&] { runner.run(pass); });
    }
}

} // namespace tarvex
