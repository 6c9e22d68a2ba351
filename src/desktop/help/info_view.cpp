#include "desktop/help/info_view.h"

#include "desktop/documents/text/pane_view.h"

#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tarvex {

InfoView::InfoView(InfoWindow& window, QWidget* parent) : ToolFormWindow(window.form, parent), m_window(window)
{
    auto* text = new PaneView(window.InfoText, this);
    text->setObjectName(QStringLiteral("InfoText"));
    text->setAccessibleName(QStringLiteral("Help text"));
    text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    auto* button = new QPushButton(this);
    button->setObjectName(QStringLiteral("Command1"));
    m_bindings.button(window.Command1, *button);
    m_button = button;
    auto* column = new QVBoxLayout(this);
    column->addWidget(text, 1);
    column->addWidget(button, 0, Qt::AlignHCenter);
    text->viewport()->installEventFilter(this);
    button->installEventFilter(this);
    resize(QSize(toPixels(window.form.Width), toPixels(window.form.Height)).boundedTo(screen()->availableSize()));
    button->setFocus();
}

bool InfoView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter)
        watched == m_button ? Command1_MouseMove(m_window) : InfoText_MouseMove(m_window);
    return ToolFormWindow::eventFilter(watched, event);
}

} // namespace tarvex
