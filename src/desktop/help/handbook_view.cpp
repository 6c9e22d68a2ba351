#include "desktop/help/handbook_view.h"

#include "desktop/help/handbook_page.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

namespace tarvex {

namespace {

constexpr int firstWidth = 960;
constexpr int firstHeight = 700;
constexpr int waysWidth = 270;
constexpr int zoomStep = 10;
constexpr int targetRole = Qt::UserRole;

std::optional<QByteArray> readFile(Handbook& handbook, const QString& name)
{
    const auto bytes = handbook.system->handbookFile(fromQt(name));
    return bytes ? std::optional(QByteArray::fromStdString(*bytes)) : std::nullopt;
}

QTreeWidgetItem* itemOf(const QTreeWidget& tree, const QString& file)
{
    for (int chapter = 0; chapter < tree.topLevelItemCount(); ++chapter) {
        const QTreeWidgetItem* top = tree.topLevelItem(chapter);
        for (int page = 0; page < top->childCount(); ++page)
            if (top->child(page)->data(0, targetRole).toString() == file) return top->child(page);
    }
    return nullptr;
}

} // namespace

HandbookView::HandbookView(Handbook& handbook, QWidget* parent)
    : ToolFormWindow(handbook.form, parent), m_handbook(handbook),
      m_page(new HandbookPage([&handbook](const QString& name) { return readFile(handbook, name); }, this)),
      m_contents(new QTreeWidget(this))
{
    auto* reading = new QWidget(this);
    auto* right = new QVBoxLayout(reading);
    right->setContentsMargins(0, 0, 0, 0);
    right->addLayout(buttonRow());
    right->addWidget(m_page, 1);
    right->addWidget(findBar());
    auto* halves = new QSplitter(this);
    halves->addWidget(waysIn());
    halves->addWidget(reading);
    halves->setStretchFactor(1, 1);
    halves->setSizes({waysWidth, firstWidth - waysWidth});
    halves->setChildrenCollapsible(false);
    auto* all = new QVBoxLayout(this);
    all->addWidget(halves);
    addShortcuts();
    connect(m_page, &HandbookPage::linkClicked, this,
            [this](const QString& link) { followHandbookLink(m_handbook, fromQt(link)); });
    m_bindings.bind(handbook.Ready, [this](bool) {
        fillContents();
        fillWords();
    });
    m_bindings.bind(handbook.Target, [this](const std::string& target) {
        if (!target.empty()) m_page->showTarget(toQt(target));
        markInContents();
    });
    m_bindings.follow(handbook.form.frontWanted, [this] { comeBeforeModalWindow(); });
    if (handbook.form.Width > 0)
        resize(
            QSize(toPixels(handbook.form.Width), toPixels(handbook.form.Height)).boundedTo(screen()->availableSize()));
    m_page->setFocus();
}

QSize HandbookView::sizeHint() const { return QSize(firstWidth, firstHeight).boundedTo(screen()->availableSize()); }

QToolButton* HandbookView::button(Button& state, const char* name, const QKeySequence& keys, Qt::ArrowType arrow)
{
    auto* view = new QToolButton(this);
    view->setObjectName(QLatin1String(name));
    view->setArrowType(arrow);
    view->setToolButtonStyle(arrow == Qt::NoArrow ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    m_bindings.button(state, *view);
    view->setToolTip(toQt(state.Caption.get()) + QStringLiteral(" (%1)").arg(keys.toString(QKeySequence::NativeText)));
    view->setAccessibleName(toQt(state.Caption.get()));
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, view, &QToolButton::click);
    return view;
}

QLayout* HandbookView::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(button(m_handbook.Back, "Back", QKeySequence(Qt::ALT | Qt::Key_Left), Qt::LeftArrow));
    row->addWidget(button(m_handbook.Forward, "Forward", QKeySequence(Qt::ALT | Qt::Key_Right), Qt::RightArrow));
    row->addWidget(button(m_handbook.Home, "Home", QKeySequence(Qt::ALT | Qt::Key_Home), Qt::NoArrow));
    row->addStretch();
    const auto zoomButton = [&](const char* name, const QString& sign, const QString& tip, int step) {
        auto* view = new QToolButton(this);
        view->setObjectName(QLatin1String(name));
        view->setText(sign);
        view->setToolTip(tip);
        view->setAccessibleName(tip);
        connect(view, &QToolButton::clicked, this, [this, step] { m_page->setZoom(m_page->zoom() + step); });
        row->addWidget(view);
    };
    zoomButton("ZoomOut", QStringLiteral("A\u2212"), QStringLiteral("Smaller letters (Ctrl+Minus)"), -zoomStep);
    zoomButton("ZoomIn", QStringLiteral("A+"), QStringLiteral("Larger letters (Ctrl+Plus)"), zoomStep);
    return row;
}

QWidget* HandbookView::findBar()
{
    m_findBar = new QWidget(this);
    auto* row = new QHBoxLayout(m_findBar);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("&Find in this page:"), m_findBar);
    m_findText = new QLineEdit(m_findBar);
    m_findText->setObjectName(QStringLiteral("FindText"));
    m_findText->setClearButtonEnabled(true);
    label->setBuddy(m_findText);
    m_findResult = new QLabel(m_findBar);
    m_findResult->setObjectName(QStringLiteral("FindResult"));
    row->addWidget(label);
    row->addWidget(m_findText, 1);
    row->addWidget(m_findResult);
    connect(m_findText, &QLineEdit::textChanged, this, [this] { find(false, false); });
    m_findBar->hide();
    return m_findBar;
}

QWidget* HandbookView::waysIn()
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("Ways"));
    tabs->setUsesScrollButtons(false); // all three names have room, also in large letters
    tabs->setElideMode(Qt::ElideNone);
    m_contents->setObjectName(QStringLiteral("ContentsTree"));
    m_contents->setAccessibleName(QStringLiteral("Chapters and pages"));
    m_contents->setHeaderHidden(true);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        const QString target = item != nullptr ? item->data(0, targetRole).toString() : QString();
        if (!target.isEmpty()) followHandbookLink(m_handbook, fromQt(target));
    });
    tabs->addTab(m_contents, QString());
    tabs->addTab(indexWay(), QString());
    tabs->addTab(searchWay(), QString());
    m_bindings.tabs(m_handbook.Ways, *tabs);
    connect(tabs, &QTabWidget::currentChanged, this, [tabs] { // by the user
        if (auto* field = tabs->currentWidget()->findChild<QLineEdit*>()) field->setFocus();
    });
    return tabs;
}

QWidget* HandbookView::indexWay()
{
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    auto* filter = new QLineEdit(page);
    filter->setObjectName(QStringLiteral("Filter"));
    filter->setPlaceholderText(QStringLiteral("First letters of a word"));
    filter->setAccessibleName(QStringLiteral("First letters of a word"));
    filter->setClearButtonEnabled(true);
    m_bindings.textBox(m_handbook.Filter, *filter);
    m_words = new QListWidget(page);
    m_words->setObjectName(QStringLiteral("Words"));
    m_words->setAccessibleName(QStringLiteral("Words with an explanation"));
    m_bindings.bind(m_handbook.ShownWords, [this](const std::vector<std::size_t>&) { fillWords(); });
    const auto follow = [this](const QListWidgetItem* item) {
        if (item != nullptr) followHandbookLink(m_handbook, fromQt(item->data(targetRole).toString()));
    };
    connect(m_words, &QListWidget::itemClicked, this, follow);
    connect(m_words, &QListWidget::itemActivated, this, follow);
    connect(filter, &QLineEdit::returnPressed, this, [this, follow] { follow(m_words->currentItem()); });
    column->addWidget(filter);
    column->addWidget(m_words, 1);
    return page;
}

QWidget* HandbookView::searchWay()
{
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    auto* search = new QLineEdit(page);
    search->setObjectName(QStringLiteral("Search"));
    search->setPlaceholderText(QStringLiteral("Words in any page"));
    search->setAccessibleName(QStringLiteral("Words to look for in all pages"));
    search->setClearButtonEnabled(true);
    m_bindings.textBox(m_handbook.Search, *search);
    auto* result = new QLabel(page);
    result->setObjectName(QStringLiteral("SearchResult"));
    m_bindings.bind(m_handbook.SearchResult.Caption,
                    [result](const std::string& text) { result->setText(toQt(text)); });
    m_hits = new QListWidget(page);
    m_hits->setObjectName(QStringLiteral("Hits"));
    m_hits->setAccessibleName(QStringLiteral("Pages that were found"));
    m_hits->setWordWrap(true);
    m_hits->setSpacing(2);
    m_bindings.bind(m_handbook.Hits, [this](const std::vector<HandbookIndex::Hit>&) { fillHits(); });
    const auto follow = [this](const QListWidgetItem* item) {
        if (item != nullptr) followHandbookLink(m_handbook, fromQt(item->data(targetRole).toString()));
    };
    connect(m_hits, &QListWidget::itemClicked, this, follow);
    connect(m_hits, &QListWidget::itemActivated, this, follow);
    connect(search, &QLineEdit::returnPressed, this, [this, follow] { follow(m_hits->item(0)); });
    column->addWidget(search);
    column->addWidget(result);
    column->addWidget(m_hits, 1);
    return page;
}

void HandbookView::addShortcuts()
{
    const auto on = [this](const QKeySequence& keys, auto act) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    on(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { showFindBar(true); });
    on(QKeySequence(Qt::Key_F3), [this] { find(false, true); });
    on(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find(true, true); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { m_page->setZoom(m_page->zoom() + zoomStep); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { m_page->setZoom(m_page->zoom() + zoomStep); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { m_page->setZoom(m_page->zoom() - zoomStep); });
    on(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { m_page->setZoom(100); });
}

void HandbookView::fillContents()
{
    const QSignalBlocker quiet(m_contents);
    m_contents->clear();
    const auto& pages = m_handbook.index.pages();
    for (const HandbookIndex::Chapter& chapter : m_handbook.index.chapters()) {
        auto* top = new QTreeWidgetItem(m_contents, {toQt(chapter.title)});
        for (const std::size_t page : chapter.pages) {
            auto* item = new QTreeWidgetItem(top, {toQt(pages[page].title)});
            item->setData(0, targetRole, toQt(pages[page].file));
            item->setToolTip(0, toQt(pages[page].title));
        }
    }
    markInContents();
}

void HandbookView::fillWords()
{
    m_words->clear();
    for (const std::size_t word : m_handbook.ShownWords.get()) {
        const HandbookIndex::Keyword& keyword = m_handbook.index.keywords()[word];
        auto* item = new QListWidgetItem(toQt(keyword.word), m_words);
        item->setData(targetRole, toQt(keyword.target));
    }
    m_words->setCurrentRow(0);
}

void HandbookView::fillHits()
{
    m_hits->clear();
    const auto& pages = m_handbook.index.pages();
    for (const HandbookIndex::Hit& hit : m_handbook.Hits.get()) {
        const HandbookIndex::Page& page = pages[hit.page];
        auto* item = new QListWidgetItem(toQt(page.title) + u'\n' + toQt(hit.excerpt), m_hits);
        item->setData(targetRole, toQt(page.file));
    }
}

/// Selects the page shown in the contents, also when it was opened from elsewhere.
void HandbookView::markInContents()
{
    const HandbookIndex::Page* page = m_handbook.index.pageOf(m_handbook.Target.get());
    if (page == nullptr) return;
    QTreeWidgetItem* item = itemOf(*m_contents, toQt(page->file));
    if (item == nullptr || item == m_contents->currentItem()) return;
    const QSignalBlocker quiet(m_contents);
    m_contents->setCurrentItem(item);
    m_contents->scrollToItem(item);
}

void HandbookView::find(bool backwards, bool fromMarked)
{
    if (m_findText->text().isEmpty()) {
        m_findResult->clear();
        if (fromMarked) showFindBar(true);
        return;
    }
    const bool found = m_page->findText(m_findText->text(), backwards, fromMarked);
    m_findResult->setText(found ? QString() : QStringLiteral("Not in this page"));
}

void HandbookView::showFindBar(bool on)
{
    m_findBar->setVisible(on);
    if (on) {
        m_findText->setFocus();
        m_findText->selectAll();
    } else {
        m_page->setFocus();
    }
}

/// Return in the find bar looks further, and Esc closes the bar before it closes the window.
void HandbookView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_findText->hasFocus()) return find(event->modifiers() & Qt::ShiftModifier, true);
    if (event->key() == Qt::Key_Escape && m_findBar->isVisible()) return showFindBar(false);
    ToolFormWindow::keyPressEvent(event);
}

/// A dialogue that asked for help keeps the other windows from being used, but not those that belong to it.
void HandbookView::comeBeforeModalWindow()
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal->windowHandle() == nullptr || windowHandle() == nullptr) return;
    if (windowHandle()->transientParent() == modal->windowHandle()) return;
    hide();
    windowHandle()->setTransientParent(modal->windowHandle());
    show();
    raise();
    activateWindow();
}

} // namespace tarvex
