#include "desktop/documents/files/differences_view.h"

#include "desktop/documents/files/difference_pane.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

namespace tarvex {

namespace {

constexpr QSize firstSize(900, 560);

std::vector<DifferencePane::Row> rowsOf(const std::vector<LineRow>& rows, const std::vector<std::string>& lines,
                                        std::optional<std::size_t> LineRow::*side)
{
    std::vector<DifferencePane::Row> shown;
    for (const LineRow& row : rows) {
        const auto& line = row.*side;
        shown.push_back({.text = line ? toQt(lines[*line]) : QString(),
                         .isGap = !line,
                         .isMarked = row.hunk.has_value(),
                         .number = line ? static_cast<int>(*line) + 1 : 0});
    }
    return shown;
}

} // namespace

DifferencesView::DifferencesView(Differences& window, QWidget* parent)
    : FormWindow(window.Form, QStringLiteral("Differences"), parent), m_window(window)
{
    setSizeGripEnabled(true);
    auto* column = new QVBoxLayout(this);
    auto* texts = new QGridLayout;
    m_left = addPane(*texts, 0, "Left", window.Left);
    m_right = addPane(*texts, 1, "Right", window.Right);
    column->addLayout(texts, 1);
    addButtons(*column);
    resize(firstSize);
    scrollTogether();
    fill();
    m_bindings.follow(window.Current, [this] { showCurrent(); });
    m_left->setFocus();
}

DifferencePane* DifferencesView::addPane(QGridLayout& texts, int column, const char* name, Label& caption)
{
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    auto* pane = new DifferencePane(this);
    pane->setObjectName(QLatin1String(name));
    m_bindings.bind(caption.Caption, [label, pane](const std::string& text) {
        label->setText(toQt(text));
        pane->setAccessibleName(toQt(text));
    });
    texts.addWidget(label, 0, column);
    texts.addWidget(pane, 1, column);
    texts.setColumnStretch(column, 1);
    return pane;
}

void DifferencesView::addButtons(QBoxLayout& column)
{
    auto* row = new QHBoxLayout;
    const auto add = [this, row](Button& state, const char* name, const QKeySequence& key) {
        auto* button = new QPushButton(this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        m_bindings.button(state, *button);
        row->addWidget(button);
        if (!key.isEmpty()) connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
    };
    add(m_window.Previous, "Previous", QKeySequence(Qt::Key_F7));
    add(m_window.Next, "Next", QKeySequence(Qt::Key_F8));
    auto* count = new QLabel(this);
    count->setObjectName(QStringLiteral("Count"));
    m_bindings.bind(m_window.Count.Caption, [count](const std::string& text) { count->setText(toQt(text)); });
    row->addWidget(count);
    row->addStretch(1);
    add(m_window.Close, "Close", {});
    column.addLayout(row);
}

void DifferencesView::fill()
{
    m_left->setRows(rowsOf(m_window.Rows, m_window.LeftLines, &LineRow::left));
    m_right->setRows(rowsOf(m_window.Rows, m_window.RightLines, &LineRow::right));
}

void DifferencesView::showCurrent()
{
    if (m_window.Current < 0) return;
    const LineHunk& hunk = m_window.Hunks[static_cast<std::size_t>(m_window.Current.get())];
    const auto first = static_cast<int>(firstRowOf(m_window, m_window.Current));
    const auto rows = static_cast<int>(std::max(hunk.leftEnd - hunk.leftBegin, hunk.rightEnd - hunk.rightBegin));
    m_left->showRows(first, first + rows);
    m_right->showRows(first, first + rows);
}

void DifferencesView::scrollTogether()
{
    const auto couple = [](QScrollBar* a, QScrollBar* b) {
        connect(a, &QScrollBar::valueChanged, b, &QScrollBar::setValue);
        connect(b, &QScrollBar::valueChanged, a, &QScrollBar::setValue);
    };
    couple(m_left->verticalScrollBar(), m_right->verticalScrollBar());
    couple(m_left->horizontalScrollBar(), m_right->horizontalScrollBar());
}

/// Once the panes have their size, by which the scroll bars know their range.
void DifferencesView::showEvent(QShowEvent* event)
{
    FormWindow::showEvent(event);
    QTimer::singleShot(0, this, [this] { showCurrent(); });
}

} // namespace tarvex
