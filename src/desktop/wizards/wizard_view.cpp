#include "desktop/wizards/wizard_view.h"

#include "desktop/line_box.h"
#include "desktop/wizards/page_body.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int charactersWide = 76;
constexpr int linesHigh = 48;

constexpr const char* footNames[footButton::count] = {"FootClose", "FootNext", "FootBack", "FootHelp"};

} // namespace

WizardView::WizardView(const std::vector<WizardPage>& pages, Parts parts, const Settings& settings, QWidget* parent)
    : ToolFormWindow(parts.turner.form, parent), m_pages(new QStackedWidget(this))
{
    PageMaker maker(m_bindings, settings, parts.actions, parts.maker);
    for (const WizardPage& page : pages) m_pages->addWidget(maker.page(page, true));
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_pages, 1);
    addFoot(parts.turner);
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    if (parts.maker != nullptr) keepFocusOnPage(parts.maker->Text1[0]);
    m_bindings.bind(parts.turner.PageNumber, [this](int page) { showPage(page); });
}

/// Room for a page of text without scrolling.
QSize WizardView::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QSize(charactersWide * metrics.averageCharWidth(), linesHigh * metrics.lineSpacing())
        .expandedTo(minimumSizeHint())
        .boundedTo(screen()->availableSize() * 9 / 10);
}

/// Nothing on a page that scrolls needs to have the keyboard for it.
void WizardView::keyPressEvent(QKeyEvent* event)
{
    auto* area = qobject_cast<QScrollArea*>(m_pages->currentWidget());
    const bool down = event->key() == Qt::Key_PageDown;
    if (area == nullptr || (!down && event->key() != Qt::Key_PageUp)) return ToolFormWindow::keyPressEvent(event);
    area->verticalScrollBar()->triggerAction(down ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
}

/// A box that stands on several pages gets the keyboard on the one that is shown.
void WizardView::keepFocusOnPage(TextBox& box)
{
    m_bindings.follow(box.focusWanted, [this] {
        for (LineBox* shown : m_pages->currentWidget()->findChildren<LineBox*>(QStringLiteral("Text1_0")))
            shown->setFocus(Qt::OtherFocusReason);
    });
}

void WizardView::addFoot(PageTurner& turner)
{
    auto* foot = new QHBoxLayout;
    static_cast<QVBoxLayout*>(layout())->addLayout(foot);
    for (const std::size_t index : {footButton::help, footButton::back, footButton::next, footButton::close}) {
        auto* button = new QPushButton(this);
        button->setObjectName(QLatin1String(footNames[index]));
        m_bindings.button(turner.foot.at(index), *button);
        foot->addWidget(button);
        if (index == footButton::help) foot->addStretch();
        if (index == footButton::next) m_next = button;
        if (index == footButton::close) m_close = button;
    }
}

/// The keyboard goes to the button that turns the page, so that Space turns on; on the last page, to the one that
/// closes.
void WizardView::showPage(int page)
{
    m_pages->setCurrentIndex(page);
    QPushButton* first = m_next->isHidden() ? m_close : m_next;
    first->setFocus(Qt::OtherFocusReason);
}

} // namespace tarvex
