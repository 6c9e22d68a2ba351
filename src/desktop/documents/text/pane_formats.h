#pragma once

#include "desktop/pane_colours.h"
#include "documents/text/pane.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextLayout>

#include <optional>
#include <vector>

namespace tarvex {

/// Gives the blocks of a document the character formats of a pane's lines: block n shows line n. A format goes into a
/// block's layout, so that it costs nothing until the block is to be seen, and leaves the document's text alone.
class PaneFormats {
public:
    explicit PaneFormats(const Pane& pane) : m_pane(pane) {}

    /// Point sizes grow by this factor.
    void setZoom(double zoom);
    /// False: they are shown like that already.
    bool setColours(const PaneColours& colours);
    /// Formats are made anew: the pane's own font, from which they differ, is another one.
    void forget() { m_known.clear(); }

    /// The block must be formatted again before it is shown.
    static void markStale(QTextBlock block) { block.setUserState(stale); }
    /// A block with other formats than before. Nobody repaints it but the caller.
    struct Changed {
        QTextBlock block;
        qreal oldHeight = 0; ///< 0: it wasn't laid out
    };
    /// Formats those blocks from `first` that are stale, up to `last`.
    std::vector<Changed> format(QTextBlock first, const QTextBlock& last);

    /// Shows the formats also around the text that an input method composes in the block; the caller repaints it.
    void formatComposing(QTextBlock block);

    /// Formats of the block's characters as the pane has them, a text that is being composed left out.
    QList<QTextLayout::FormatRange> ranges(const QTextBlock& block);

private:
    enum State { stale = -1, formatted = 1 };
    const QTextCharFormat& look(FormatId id);
    QTextCharFormat makeLook(const CharacterFormat& format) const;

    const Pane& m_pane;
    double m_zoom = 1;
    PaneColours m_colours;
    std::vector<std::optional<QTextCharFormat>> m_known; ///< by FormatId
};

} // namespace tarvex
