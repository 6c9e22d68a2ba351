#pragma once

#include "documents/text/line_index.h"
#include "documents/text/rich_text.h"
#include "documents/text/snapshot_keeper.h"
#include "platform/controls.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Font of a pane as a whole.
struct PaneFont {
    std::string name = "Arial";
    float size = 10; ///< points
    bool bold = false;
    bool operator==(const PaneFont&) const = default;
};

/// Options of Pane::Find; they add up.
namespace find {
constexpr int wholeWord = 2;
constexpr int matchCase = 4;
} // namespace find

/// A text with character formats and a selection: what the user edits and what every analyser works on.
///
/// Text is Windows-1252, one byte a position; positions count from 0, and CR and LF are a position each. Every text
/// written has its lone CR and lone LF made CR LF, and no edit parts a CR LF: the edge of an edit that stands between
/// the two moves so that the pair stays whole: an insertion goes before the pair, and a replacement leaves a pair that
/// it holds half of alone. So CR and LF only ever stand in pairs, and a line is what lies between two pairs.
///
/// New text takes the insertion format: the one that was chosen for the caret while it stands there; otherwise that of
/// the character before it in the line, else of the one behind it in the line, else of the line end before it, else the
/// pane's own (its Font, colour 0, the indent last set). Where it replaces others, it takes the format of the first.
///
/// Listeners find the edit done, and must not write to the pane themselves before Change runs; Change may.
/// Change runs after the text, or the look of characters in it, was written, also when the new text equals the old.
/// Errors are RuntimeError.
class Pane {
public:
    static constexpr std::int64_t toEnd = INT64_MAX;

    /// `formats` is shared by the panes of one program; none makes a table of the pane's own.
    explicit Pane(std::shared_ptr<FormatTable> formats = nullptr);
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;

    // ---- text -------------------------------------------------------------------------------------------------------

    const std::string& Text() const { return m_text; }
    /// The whole text, in the format that the first character had (or that an empty pane writes in). Caret to 0.
    void setText(std::string_view text);
    std::size_t TextLength() const { return m_text.size(); }

    /// The text with its formats. Shares storage with earlier snapshots of this pane.
    RichText TextRTF() const;
    /// Caret to 0.
    void setTextRTF(const RichText& text);

    // ---- selection --------------------------------------------------------------------------------------------------

    std::int64_t SelStart() const { return m_selStart; }
    /// Puts a caret there; past the end means the end. Negative: InvalidPropertyValue, and the selection stays.
    void setSelStart(std::int64_t position);
    std::int64_t SelLength() const { return m_selLength; }
    /// Cut to the end of the text. Negative: InvalidPropertyValue, and the selection stays.
    void setSelLength(std::int64_t length);

    std::string SelText() const;
    /// Replaces the selection; the caret stands behind the new text.
    void setSelText(std::string_view text);

    RichText SelRTF() const;
    /// Replaces the selection by a text that brings its formats; the caret stands behind it.
    void setSelRTF(const RichText& text);

    // ---- look -------------------------------------------------------------------------------------------------------

    // Each writes the characters of the selection, or with an empty selection the insertion format: the one that the
    // next text written at the caret takes, as long as the caret doesn't move.
    void setSelColor(Colour colour);
    void setSelFontName(const std::string& name);
    void setSelFontSize(float points);
    void setSelBold(bool bold);
    void setSelItalic(bool italic);
    void setSelUnderline(bool underline);
    /// Left indent, in twips, of the paragraphs that the selection touches. Runs no Change.
    void setSelIndent(int twips);

    /// Format of the first character of the selection, or with an empty selection the insertion format.
    const CharacterFormat& SelFormat() const;
    Colour SelColor() const { return SelFormat().colour; }
    int SelIndent() const { return SelFormat().indent; }

    /// Gives the characters from `position` on these formats, by their numbers in the pane's table; those behind the
    /// end are left out. Selection and caret stay, and no Change runs: it isn't the user's doing. `position` isn't
    /// negative.
    void setFormats(std::int64_t position, const std::vector<FormatId>& formats);
    const CharacterFormat& formatAt(std::size_t position) const { return (*m_formats)[m_format[position]]; }
    FormatId formatIdAt(std::size_t position) const { return m_format[position]; }
    /// Runs that cover the text; neighbours differ.
    std::vector<FormatRun> runs() const;
    const std::shared_ptr<FormatTable>& formats() const { return m_formats; }

    Property<Colour> BackColor = 0xFFFFFF;
    /// Writing it also gives an empty pane's next text that font.
    const PaneFont& Font() const { return m_font; }
    void setFont(const PaneFont& font);

    // ---- search -----------------------------------------------------------------------------------------------------

    /// The first match that lies wholly in start..end, selected; -1 without one, and the selection stays. Case counts
    /// only with find::matchCase. With find::wholeWord neither edge of the match may have a word character (letter,
    /// digit, "_") on both of its sides. An empty text is not found. A negative start stands for the position 65,536
    /// above it.
    std::int64_t Find(std::string_view text, std::int64_t start, std::int64_t end = toEnd, int options = 0);

    /// What replaceEach did; positions are those of the text as it is then.
    struct Replaced {
        std::int64_t count = 0;
        std::int64_t found = -1; ///< where the search that ended it found the text; -1: nowhere
        std::int64_t caret = 0;  ///< behind the last replacement, or where it all began
    };
    /// Replaces each match from `start` on as Find, with the end of the text, and setSelText would by turns, beginning
    /// behind each replacement again, but as one edit with one Change at most. The replacement has only CR LF pairs.
    /// Ends where no match is left, or at the first that `mayReplace` refuses by its position. The caret stands behind
    /// the last replacement; without any the selection stays. A text that begins with LF or ends with CR, and so parts
    /// pairs, has no match here. `start` is not negative.
    Replaced replaceEach(std::string_view text, std::string_view replacement, std::int64_t start, int options,
                         const std::function<bool(std::int64_t position)>& mayReplace);

    /// Extends the selection forward from its end (or backward from its start) over the characters that are in `set`,
    /// or with `negate` over those that aren't. `set` is matched exactly.
    void Span(std::string_view set, bool forward, bool negate);
    /// Moves the caret from the selection's end (or backward from its start) up to the first character that is in
    /// `set`, or with `negate` that isn't; to the edge of the text when there is none.
    void UpTo(std::string_view set, bool forward, bool negate);

    /// Line, from 0, of a position; past the end the last line; of a negative position the line of SelStart.
    std::int64_t GetLineFromChar(std::int64_t position) const;
    std::int64_t lineCount() const { return m_lines.count(); }
    /// First position of a line from 0 to lineCount() - 1.
    std::int64_t lineStart(std::int64_t line) const { return m_lines.start(line); }

    // ---- the window's side ------------------------------------------------------------------------------------------

    Property<bool> Locked = false; ///< the user can't edit
    Property<bool> Visible = true;
    Property<Placement> Place;
    /// Asks the view for the keyboard, or for a repaint.
    void SetFocus() { focusWanted(); }
    void Refresh() { refreshWanted(); }
    Signal<> focusWanted;
    Signal<> refreshWanted;

    /// An edit by the user: `removed` characters at `position` give way to `inserted`, and the caret stands behind it.
    /// What lies outside the text is cut. Nothing happens when Locked, or when there is nothing to remove or insert.
    void userEdit(std::int64_t position, std::int64_t removed, std::string_view inserted);

    /// A character key (its code; 8 Backspace, 13 Return) was pressed and hasn't changed the text yet. Run by the view.
    std::function<void(int)> KeyPress;
    /// The user is about to write or delete by something else: the Delete key, a paste, an input method. Run by the
    /// view.
    std::function<void()> EditComing;
    std::function<void()> Change; ///< text or look was written

    /// What the views of the pane must bring up to date. The text of a view stays right when each `edited` is applied
    /// in turn: `removed` characters at `position` gave way to `inserted` ones of the present text.
    struct Edit {
        std::int64_t position = 0;
        std::int64_t removed = 0;
        std::int64_t inserted = 0;
    };
    Signal<Edit> edited;
    /// Characters in `position`, `length` changed their format. Not emitted for characters that an Edit inserted.
    Signal<std::int64_t, std::int64_t> reformatted;
    Signal<> selectionChanged;
    Signal<> fontChanged;

private:
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    Range selection() const;
    void select(std::size_t start, std::size_t length);
    void reportSelection(std::int64_t oldStart, std::int64_t oldLength);
    void changed() const;
    bool partsPair(std::size_t position) const;
    Range withoutHalfPairs(Range range) const;

    void replace(Range range, std::string_view text);
    void replace(Range range, std::string_view text, const std::vector<FormatId>& formats);
    void putText(Range range, std::string_view text);
    void putFormats(Range range, const FormatId* formats, std::size_t count);
    void putWhole(const RichText& text);

    FormatId formatFor(Range range) const;
    FormatId insertionFormat() const;
    FormatId defaultFormat() const;
    template <typename Map> Range repaint(Range range, Map map);
    template <typename Map> void writeLook(Map map);
    template <typename Write> void writeFormat(Write write);
    void reportReformatted(Range range) const;

    const std::string& foldedText() const;
    bool wholeWordAt(std::size_t begin, std::size_t end) const;

    std::shared_ptr<FormatTable> m_formats;
    std::string m_text;
    std::vector<FormatId> m_format; ///< of each character
    LineIndex m_lines;
    std::int64_t m_selStart = 0;
    std::int64_t m_selLength = 0;
    PaneFont m_font;
    int m_indent = 0;                            ///< as last set
    std::optional<FormatId> m_chosenFormat;      ///< for the caret where it stands
    mutable std::optional<std::string> m_folded; ///< the text in lower case, once something was sought in it
    mutable SnapshotKeeper m_snapshots;
};

} // namespace tarvex
