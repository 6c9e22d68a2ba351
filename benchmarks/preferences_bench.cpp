#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_desktop.h"
#include "desktop/platform/qt_dialogues.h"
#include "desktop/platform/qt_machine.h"
#include "desktop/platform/qt_pictures.h"
#include "desktop/platform/qt_printers.h"
#include "desktop/platform/qt_processes.h"
#include "desktop/platform/sdl_sound.h"
#include "desktop/preferences/preferences_view.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "program/program.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QScrollArea>
#include <QTabWidget>
#include <QTemporaryDir>

#include <chrono>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

// The preferences on the real disk: from the command to the painted dialogue, from page to page, and closing.

namespace tarvex::benchmarks {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// A program that has been used: 30 favourites, games and loaders.
class UsedProgram {
public:
    UsedProgram()
    {
        m_program.shared.store.GetOptions();
        m_program.shared.store.GetColours();
        m_program.operations.GetFavourites();
        m_program.operations.GetGames();
        m_program.operations.GetCustomApps();
    }
    Preferences& preferences() { return m_program.preferences; }

private:
    static std::string write(const std::string& folder)
    {
        std::ofstream ini(folder + "/Tarvex.ini");
        ini << "[FileLocations]\r\nFirstTimeUsed=0\r\nProgramFilesPath=c:\\tm\r\nB50LoadPath=c:\\tm\\winld.exe\r\n";
        for (const std::string list : {"Fav", "Game"}) {
            ini << (list == "Fav" ? "[Favourites]\r\n" : "[Games]\r\n") << list << "ArrayNum=30\r\n";
            for (int i = 1; i <= 30; ++i)
                ini << list << "Name" << i << "=entry " << i << "\r\n" << list << "Path" << i << "=c:\\g.exe\r\n";
        }
        std::ofstream lists(folder + "/Lists.ini");
        lists << "[Loaders]\r\nNumPreviousLoaders=30\r\n";
        for (int i = 1; i <= 30; ++i) lists << "Loader" << i << "=c:\\tm\\loader" << i << ".exe\r\n";
        return folder;
    }

    QTemporaryDir m_disk;
    std::string m_folder = write(m_disk.path().toStdString());
    DriveMap m_drives{{.winePrefix = {}, .home = {}, .programDirectory = m_folder, .workingDirectory = m_folder}};
    SystemCalls m_calls;
    SafeWriter m_writer{m_folder + "/Recover", m_calls};
    PosixFiles m_files{m_drives, m_writer};
    QtDialogues m_dialogues{m_drives};
    QtDesktop m_desktop{m_folder};
    SdlSound m_sound{m_drives};
    QtClipboard m_clipboard;
    QtProcesses m_processes{m_drives, m_files, m_dialogues, m_drives.toDos(m_folder)};
    QtMachine m_machine{m_drives, m_processes};
    QtPrinters m_printers;
    QtPictures m_pictures{m_drives};
    Platform m_platform{m_files,     m_dialogues, m_desktop,  m_sound,    m_clipboard,
                        m_processes, m_machine,   m_printers, m_pictures, m_drives.toDos(m_folder),
                        {}};
    Program m_program{m_platform};
};

/// The dialogue, shown and painted.
class Opened {
public:
    explicit Opened(Preferences& preferences) : m_view(loaded(preferences), nullptr)
    {
        m_view.show();
        m_tabs = m_view.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
        paint(m_view);
    }
    QTabWidget& tabs() { return *m_tabs; }
    /// Shows a page; returns when it is painted.
    void showPage(int page)
    {
        m_tabs->setCurrentIndex(page);
        paint(*static_cast<QScrollArea*>(m_tabs->widget(page))->widget());
    }

private:
    static Preferences& loaded(Preferences& preferences)
    {
        PREFS_Form_Load(preferences);
        PREFS_Form_Activate(preferences);
        return preferences;
    }
    static void paint(QWidget& widget)
    {
        constexpr double longest = 2; // seconds
        PaintCounter counter;
        widget.installEventFilter(&counter);
        widget.update();
        const auto start = Clock::now();
        while (counter.paints == 0 && secondsSince(start) < longest) QApplication::processEvents();
        if (counter.paints == 0) throw std::runtime_error("the page isn't painted");
    }

    PreferencesView m_view;
    QTabWidget* m_tabs = nullptr;
};

void preferencesToPainted(benchmark::State& state)
{
    UsedProgram program;
    for (auto _ : state) {
        const auto start = Clock::now();
        const auto opened = std::make_unique<Opened>(program.preferences());
        state.SetIterationTime(secondsSince(start));
    }
}
BENCHMARK(preferencesToPainted)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The slowest page, for each page is shown the first time in each round.
void preferencesPage(benchmark::State& state)
{
    UsedProgram program;
    for (auto _ : state) {
        Opened opened(program.preferences());
        double slowest = 0;
        for (int page = 1; page < opened.tabs().count(); ++page) {
            const auto start = Clock::now();
            opened.showPage(page);
            slowest = std::max(slowest, secondsSince(start));
        }
        state.SetIterationTime(slowest);
    }
}
BENCHMARK(preferencesPage)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Keys change in each of the three files, which are written and synced.
void preferencesClose(benchmark::State& state)
{
    UsedProgram program;
    Preferences& preferences = program.preferences();
    int round = 0;
    for (auto _ : state) {
        PREFS_Form_Load(preferences);
        const std::string number = std::to_string(++round);
        preferences.fileLocationsPage.Text1.Text = "c:\\tm\\winld" + number + ".exe";
        preferences.fileLocationsPage.Text2.Text = "c:\\tm" + number;
        preferences.savingPage.TxtUndoLevels.Text = std::to_string(10 + round % 1000);
        preferences.extrasPage.Runners[0].Path.Text = "/opt/wine" + number;
        const auto start = Clock::now();
        PREFS_Form_Unload(preferences);
        state.SetIterationTime(secondsSince(start));
    }
}
BENCHMARK(preferencesClose)->Iterations(50)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvex::benchmarks
