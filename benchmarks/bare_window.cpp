// The floor for start and memory: a window of Qt's own widgets, of the kinds and in the numbers that Tarvex shows, with
// the texts of two files and nothing behind them.
//
//   bare_window ICON_FOLDER JOYSTICK_FILE MACRO_FILE

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTabBar>
#include <QToolBar>

namespace {

constexpr int menus = 9;
constexpr int commandsOfAMenu = 14;
constexpr int toolbarButtons = 31;
constexpr int statusPanels = 8;
constexpr int macroButtons = 13;

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

void addMenus(QMenuBar& bar)
{
    for (int menu = 0; menu < menus; ++menu) {
        QMenu* shown = bar.addMenu(QStringLiteral("Menu %1").arg(menu));
        for (int command = 0; command < commandsOfAMenu; ++command)
            shown->addAction(QStringLiteral("Command %1").arg(command));
    }
}

QToolBar* makeToolBar(const QString& iconFolder, QWidget* parent)
{
    auto* bar = new QToolBar(parent);
    const QDir folder(iconFolder);
    const QStringList icons = folder.entryList({QStringLiteral("*.svg")});
    for (int button = 0; button < toolbarButtons && button < icons.size(); ++button)
        bar->addAction(QIcon(folder.filePath(icons[button])), QStringLiteral("Button %1").arg(button));
    return bar;
}

QWidget* makeMacroFrame(const QString& macros, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(new QComboBox(frame));
    auto* list = new QListWidget(frame);
    for (const QString& line : macros.split(u'\n')) {
        auto* item = new QListWidgetItem(line.section(u'=', 0, 0), list);
        item->setCheckState(Qt::Unchecked);
    }
    column->addWidget(list, 1);
    auto* grid = new QGridLayout;
    for (int button = 0; button < macroButtons; ++button)
        grid->addWidget(new QPushButton(QStringLiteral("/%1").arg(button), frame), button / 5, button % 5);
    column->addLayout(grid);
    frame->setFixedWidth(200);
    return frame;
}

QPlainTextEdit* makeText(const QString& text, QWidget* parent)
{
    auto* edit = new QPlainTextEdit(text, parent);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setFont(QFont(QStringLiteral("Courier New"), 10));
    return edit;
}

QWidget* makeEditor(const QString& joystick, const QString& macros, QWidget* parent)
{
    auto* editor = new QWidget(parent);
    auto* grid = new QGridLayout(editor);
    auto* tabs = new QTabBar(editor);
    tabs->addTab(QStringLiteral("joystick"));
    tabs->addTab(QStringLiteral("macros"));
    grid->addWidget(makeMacroFrame(macros, editor), 0, 0, 2, 1);
    grid->addWidget(tabs, 0, 1);
    grid->addWidget(makeText(joystick, editor), 1, 1);
    makeText(macros, editor)->hide(); // the other tab's
    return editor;
}

void addPanels(QStatusBar& bar)
{
    for (int panel = 0; panel < statusPanels; ++panel)
        bar.addPermanentWidget(new QLabel(QStringLiteral("Panel %1").arg(panel), &bar));
    bar.addPermanentWidget(new QProgressBar(&bar));
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QStringList given = QApplication::arguments();
    if (given.size() != 4) return 2;
    QMainWindow window;
    addMenus(*window.menuBar());
    window.addToolBar(makeToolBar(given[1], &window));
    window.setCentralWidget(makeEditor(textOf(given[2]), textOf(given[3]), &window));
    addPanels(*window.statusBar());
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
