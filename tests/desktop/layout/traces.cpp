#include "traces.h"

#include "plain_widgets.h"
#include "shown_state.h"

#include <set>

namespace tarvex {

namespace {

/// Adds a line for each new entry, and notes that they are known now.
void addNew(QStringList& lines, const char* what, const auto& entries, std::size_t& known, auto textOf)
{
    for (; known < entries.size(); ++known)
        lines.append(QLatin1String(what) + u' ' + quoted(toQt(textOf(entries[known]))));
}

} // namespace

QStringList Traces::takeNew()
{
    QStringList lines = changesOfDocuments();
    const auto itself = [](const std::string& text) { return text; };
    const auto& writes = m_desktop.machine.files.writes();
    std::set<std::string> written;
    for (; m_writes < writes.size(); ++m_writes) written.insert(writes[m_writes].path);
    for (const std::string& path : written) {
        if (toQt(path).endsWith(QStringLiteral(".ini"), Qt::CaseInsensitive))
            lines += newLinesOf(path);
        else
            lines.append(QStringLiteral("writes ") + toQt(path));
    }
    addNew(lines, "plays", m_desktop.machine.sound.played, m_sounds, itself);
    addNew(lines, "starts", m_desktop.machine.processes.starts, m_starts,
           [](const FakeProcesses::Start& start) { return start.commandLine; });
    addNew(lines, "browses", m_desktop.helpSystem.opened, m_pages, itself);
    addNew(lines, "shows folder", m_desktop.machine.machine.shown, m_folders, itself);
    addNew(lines, "opens file", m_desktop.machine.desktop.programFilesOpened, m_opened, itself);
    if (std::exchange(m_quits, m_desktop.machine.desktop.quits) != m_desktop.machine.desktop.quits)
        lines.append(QStringLiteral("ends the program"));
    if (const std::string text = m_desktop.machine.clipboard.content.text; text != m_clipboard) {
        m_clipboard = text;
        lines.append(QStringLiteral("copies ") + quoted(toQt(text)));
    }
    return lines;
}

QStringList Traces::changesOfDocuments()
{
    Program& program = *m_desktop.program;
    std::map<QString, QString> now;
    for (const Side* side : {&program.editor.joystick, &program.editor.macro}) {
        const QString kind = toQt(side->kind);
        now[kind + QStringLiteral(" text")] = QString::fromLatin1(side->pane.Text());
        now[kind + QStringLiteral(" selection")] =
            QStringLiteral("%1+%2").arg(side->pane.SelStart()).arg(side->pane.SelLength());
    }
    now[QStringLiteral("status")] = toQt(program.mum.StatusBar.Panels(panel::progress).Text.get());
    QStringList lines;
    for (const auto& [what, text] : now)
        if (text != m_shown[what]) lines.append(what + u' ' + difference(m_shown[what], text));
    m_shown = now;
    return lines;
}

QStringList Traces::newLinesOf(const std::string& path)
{
    const QString text = toQt(m_desktop.machine.files.contents(path).value_or(""));
    const QStringList now = text.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    QStringList& before = m_texts[path];
    QStringList lines;
    for (const QString& line : now)
        if (!before.contains(line)) lines.append(QStringLiteral("sets ") + quoted(line));
    for (const QString& line : before)
        if (!now.contains(line)) lines.append(QStringLiteral("unsets ") + quoted(line));
    before = now;
    return lines;
}

} // namespace tarvex
