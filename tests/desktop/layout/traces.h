#pragma once

#include "desktop_program.h"

#include <QStringList>

namespace tarvex {

/// What the program does beside showing windows: texts, the status bar, files, settings, sounds, other programs, the
/// clipboard.
class Traces {
public:
    explicit Traces(DesktopProgram& desktop) : m_desktop(desktop) { takeNew(); }

    /// What has come since the last call, a line each.
    QStringList takeNew();

private:
    QStringList changesOfDocuments();
    QStringList newLinesOf(const std::string& path);

    DesktopProgram& m_desktop;
    std::size_t m_writes = 0;
    std::size_t m_sounds = 0;
    std::size_t m_starts = 0;
    std::size_t m_pages = 0;
    std::size_t m_folders = 0;
    std::size_t m_opened = 0;
    int m_quits = 0;
    std::string m_clipboard;
    std::map<QString, QString> m_shown;         ///< texts of the documents and of the status bar, by what they are
    std::map<std::string, QStringList> m_texts; ///< of files with settings, by path
};

} // namespace tarvex
