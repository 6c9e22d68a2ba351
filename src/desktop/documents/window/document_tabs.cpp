#include "desktop/documents/window/document_tabs.h"

#include "desktop/text.h"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace tarvex {

DocumentTabs::DocumentTabs(QWidget* parent) : QTabBar(parent)
{
    setExpanding(false);
    setElideMode(Qt::ElideMiddle);
    setUsesScrollButtons(false);
}

bool DocumentTabs::isCut(int index) const { return QTabBar::tabSizeHint(index).width() > tabRect(index).width(); }

/// The width that the other tabs leave, but at least an equal share.
QSize DocumentTabs::tabSizeHint(int index) const
{
    QSize size = QTabBar::tabSizeHint(index);
    int others = 0;
    for (int i = 0; i < count(); ++i) {
        if (i != index) others += QTabBar::tabSizeHint(i).width();
    }
    size.setWidth(std::min(size.width(), std::max(width() / count(), width() - others)));
    return size;
}

bool DocumentTabs::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QTabBar::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const int index = tabAt(help.pos());
    QString tip = index >= 0 && wholeOf ? wholeOf(index) : QString();
    if (tip.isEmpty() && index >= 0 && isCut(index))
        tip = tabText(index).replace(QStringLiteral("&&"), QStringLiteral("&"));
    QToolTip::showText(help.globalPos(), wrappingTip(tip), this);
    return true;
}

} // namespace tarvex
