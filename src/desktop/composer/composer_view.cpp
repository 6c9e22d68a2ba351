#include "desktop/composer/composer_view.h"

#include "desktop/composer/field_row.h"
#include "desktop/composer/flags_page.h"
#include "desktop/composer/hardware_page.h"
#include "desktop/composer/list_pages.h"
#include "desktop/composer/statement_forms.h"
#include "desktop/screen_room.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tarvex {

ComposerView::ComposerView(InsertOptions& window, QWidget* parent)
    : ToolFormWindow(window.form, parent), m_window(window)
{
    constexpr int listsWidth = 250;
    auto* column = new QVBoxLayout(this);
    auto* parts = new QSplitter(Qt::Horizontal, this);
    parts->addWidget(makeStatementPages());
    parts->addWidget(makeListPages());
    parts->setStretchFactor(0, 1);
    parts->setChildrenCollapsible(false);
    QScrollArea* area = scrolling(*parts);
    column->addWidget(area, 1);
    column->addLayout(makeTicks());
    column->addLayout(makeFoot());
    m_bindings.timer(window.TimerAssigned, *this);
    ensurePolished();
    const QSize least = parts->minimumSizeHint();
    const QMargins margins = column->contentsMargins();
    const QSize whole(least.width() + margins.left() + margins.right(),
                      least.height() + column->minimumSize().height() - area->minimumSizeHint().height());
    const QSize room = screenRoom(*this);
    QSize size = QSize(toPixels(window.form.Width), toPixels(window.form.Height)).expandedTo(whole);
    if (size.height() > room.height()) size.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    resize(size.boundedTo(room));
    parts->setSizes({width() - listsWidth, listsWidth});
}

/// On a screen that is too small for the pages they scroll; what is below them stays in sight.
QScrollArea* ComposerView::scrolling(QWidget& parts)
{
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(&parts);
    return area;
}

QTabWidget* ComposerView::makeStatementPages()
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTab1"));
    tabs->addTab(new HardwarePage(m_window, m_bindings), {});
    tabs->addTab(rangePage(m_window, m_bindings), {});
    tabs->addTab(antennaPage(m_window, m_bindings), {});
    tabs->addTab(throttlePage(m_window, m_bindings), {});
    tabs->addTab(axesPage(m_window, m_bindings), {});
    tabs->addTab(setUpPage(m_window, m_bindings), {});
    tabs->addTab(flagsPage(m_window, m_bindings), {});
    m_bindings.pages(m_window.SSTab1, *tabs);
    return tabs;
}

QTabWidget* ComposerView::makeListPages()
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTab7"));
    tabs->addTab(macrosPage(m_window, m_bindings), {});
    tabs->addTab(templatesPage(m_window, m_bindings), {});
    m_bindings.pages(m_window.SSTab7, *tabs);
    return tabs;
}

QLayout* ComposerView::makeTicks()
{
    struct Tick {
        CheckBox& state;
        const char* name;
    };
    auto* row = new QHBoxLayout;
    for (const Tick& tick : {Tick{m_window.CheckAlwaysInsert, "CheckAlwaysInsert"},
                             Tick{m_window.HighlightStatement, "HighlightStatement"},
                             Tick{m_window.CheckShowAssigned, "CheckShowAssigned"},
                             Tick{m_window.Check2FocusThang, "Check2FocusThang"}, Tick{m_window.Check1, "Check1"}}) {
        auto* box = new QCheckBox(this);
        box->setObjectName(QLatin1String(tick.name));
        m_bindings.checkBox(tick.state, *box);
        row->addWidget(box);
    }
    row->addStretch(1);
    return row;
}

QLayout* ComposerView::makeFoot()
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (std::size_t i = 0; i < m_window.Command5.size(); ++i)
        row->addWidget(newButton(m_window.Command5[i], QStringLiteral("Command5(%1)").arg(i), m_bindings, this));
    QPushButton* why = newButton(m_window.Command14, QStringLiteral("Command14"), m_bindings, this);
    why->setAccessibleName(QStringLiteral("Why hide the Composer?"));
    why->setFixedWidth(why->sizeHint().height());
    row->addWidget(newButton(m_window.Command6, QStringLiteral("Command6"), m_bindings, this));
    row->addWidget(why);
    return row;
}

/// Return presses the button that has the keyboard, and none otherwise.
void ComposerView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return ToolFormWindow::keyPressEvent(event);
    if (auto* focused = qobject_cast<QAbstractButton*>(focusWidget())) focused->click();
}

} // namespace tarvex
