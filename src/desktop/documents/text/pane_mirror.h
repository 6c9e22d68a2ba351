#pragma once

#include "desktop/documents/text/pane_formats.h"
#include "documents/text/pane.h"

#include <QObject>
#include <QTextDocument>

#include <optional>

namespace tarvex {

/// Keeps a text document and a pane equal: what the pane's text became is brought into the document by `update`, what
/// the user did to the document into the pane by `deliver`. Both wait until they are called, so that neither happens
/// in the middle of the other's work.
class PaneMirror : public QObject {
    Q_OBJECT
public:
    /// Both outlive the mirror. The document's undo is turned off: the program has its own.
    PaneMirror(Pane& pane, QTextDocument& document);

    bool typed() const { return m_typed.has_value(); }
    /// The document lags behind the pane.
    bool behind() const { return m_behind || m_unformatted; }

    /// Neither has anything that the other lacks.
    bool equal() const { return !m_typed && !m_writing && !behind(); }

    /// Makes the user's changes one edit of the pane. `caret` is where they left it in the document. When the pane
    /// refuses the edit, the document gets its text back at the next update.
    void deliver(int caret);

    /// Lines, from 0, that the document had from `first` to `last` are now `added` more.
    struct Rewritten {
        int first = 0;
        int last = 0;
        int added = 0;
    };
    /// Brings the changed stretch of the document up to date.
    std::optional<Rewritten> update();

    int documentPosition(std::int64_t panePosition) const;
    std::int64_t panePosition(int documentPosition) const;

    PaneFormats& formats() { return m_formats; }
    void markAllStale();

signals:
    /// There is something to deliver or to update.
    void waiting();
    /// So many characters that the user wrote became "?", because the pane can't hold them.
    void charactersLost(int count);

private:
    /// What both sides have in common: characters at the start and at the end. All between may differ.
    struct Common {
        std::int64_t before = 0;
        std::int64_t after = 0;
    };
    static void narrow(std::optional<Common>& common, Common by);

    /// A part of the pane's text, `begin` to `end`, and the part of the document that it is to replace.
    struct Stretch {
        std::int64_t begin = 0;
        std::int64_t end = 0;
        int from = 0;
        int to = 0;
    };

    Stretch typedBetween(int from, int to) const;
    Stretch typedStretch(Common typed, int caret) const;
    void onDocumentChanged(int position, int removed, int added);
    void onPaneEdited(const Pane::Edit& edit);
    void onPaneReformatted(std::int64_t position, std::int64_t length);
    Stretch stretchBetween(Common common) const;
    std::optional<Rewritten> rewrite(const Stretch& stretch);
    Rewritten replace(int from, int to, const QString& text);
    bool partsPair(std::int64_t position) const;
    QString paneStretch(std::int64_t begin, std::int64_t end) const;
    void markStale(int from, int to);
    void markUnformatted();
    QString documentStretch(int from, int to) const;
    int documentLength() const { return m_document.characterCount() - 1; }
    std::int64_t paneLength() const { return static_cast<std::int64_t>(m_pane.TextLength()); }

    Pane& m_pane;
    QTextDocument& m_document;
    PaneFormats m_formats;
    std::optional<Common> m_typed;       ///< in positions of the document, as it was and is
    std::optional<Common> m_behind;      ///< in positions of the pane
    std::optional<Common> m_unformatted; ///< in positions of the pane
    std::optional<Pane::Edit> m_echo;    ///< what the pane is going to report of the edit that is being delivered
    bool m_writing = false;
    std::vector<Connection> m_connections;
};

} // namespace tarvex
