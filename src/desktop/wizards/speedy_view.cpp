#include "desktop/wizards/speedy_view.h"

#include "desktop/wizards/page_body.h"

#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tarvex {

SpeedyView::SpeedyView(const std::vector<WizardPage>& pages, Speedy& window, QWidget* parent)
    : ToolFormWindow(window.form, parent)
{
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("SSTab1"));
    PageMaker maker(m_bindings, window.maker.editor.shared.settings, window.maker.Command1, &window.maker);
    for (int page = 0; page < window.SSTab1.Count(); ++page) {
        const auto index = static_cast<std::size_t>(page);
        tabs->addTab(maker.page(index < pages.size() ? pages[index] : WizardPage(), false), {});
    }
    m_bindings.pages(window.SSTab1, *tabs);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tabs);
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    tabs->setFocus();
}

/// Room for each tab without scrolling.
QSize SpeedyView::sizeHint() const
{
    constexpr int charactersWide = 64;
    constexpr int linesHigh = 24;
    const QFontMetrics metrics = fontMetrics();
    return QSize(charactersWide * metrics.averageCharWidth(), linesHigh * metrics.lineSpacing())
        .expandedTo(minimumSizeHint())
        .boundedTo(screen()->availableSize() * 9 / 10);
}

} // namespace tarvex
