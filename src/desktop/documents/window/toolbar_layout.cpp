#include "desktop/documents/window/toolbar_layout.h"

#include <QWidget>

#include <algorithm>

namespace tarvex {

ToolbarLayout::ToolbarLayout(QWidget* extension, QWidget* parent) : QLayout(parent), m_extension(extension)
{
    m_extension->hide();
}

ToolbarLayout::~ToolbarLayout()
{
    for (const Entry& entry : m_entries) delete entry.item;
}

void ToolbarLayout::addSeparator(QWidget* separator)
{
    addWidget(separator);
    m_entries.back().separator = true;
}

void ToolbarLayout::setWraps(bool on)
{
    m_wraps = on;
    invalidate();
}

bool ToolbarLayout::isLeftOut(const QWidget* widget) const { return !widget->isHidden() && widget->size().isEmpty(); }

QLayoutItem* ToolbarLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_entries[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* ToolbarLayout::takeAt(int index)
{
    QLayoutItem* const item = itemAt(index);
    if (item != nullptr) m_entries.erase(m_entries.begin() + index);
    return item;
}

int ToolbarLayout::rowHeight() const
{
    int height = 0;
    for (const Entry& entry : m_entries) {
        if (!entry.item->isEmpty()) height = std::max(height, entry.item->sizeHint().height());
    }
    return height;
}

/// A size hint knows nothing of a fixed width.
int ToolbarLayout::extensionWidth() const
{
    return std::clamp(m_extension->sizeHint().width(), m_extension->minimumWidth(), m_extension->maximumWidth());
}

/// Of all there is in one row.
int ToolbarLayout::rowWidth() const
{
    int width = 0;
    int separator = 0; // due before the next widget
    for (const Entry& entry : m_entries) {
        if (entry.item->isEmpty()) continue;
        if (entry.separator) {
            separator = width > 0 ? entry.item->sizeHint().width() : 0;
        } else {
            width += std::exchange(separator, 0) + entry.item->sizeHint().width();
        }
    }
    return width;
}

std::vector<QRect> ToolbarLayout::places(const QRect& area) const
{
    std::vector<QRect> found(m_entries.size());
    const bool leavesOut = !m_wraps && rowWidth() > area.width();
    const int end = area.left() + area.width() - (leavesOut ? extensionWidth() : 0);
    const int height = rowHeight();
    QPoint at = area.topLeft();
    std::size_t separator = m_entries.size(); // due before the next widget
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries[i];
        if (entry.item->isEmpty()) continue;
        if (entry.separator) {
            separator = at.x() > area.left() ? i : m_entries.size();
            continue;
        }
        const int gap = separator < m_entries.size() ? m_entries[separator].item->sizeHint().width() : 0;
        const int width = entry.item->sizeHint().width();
        if (at.x() + gap + width > end && at.x() > area.left()) {
            if (!m_wraps) break;
            at = {area.left(), at.y() + height};
        } else if (gap > 0) {
            found[separator] = QRect(at, QSize(gap, height));
            at.rx() += gap;
        }
        separator = m_entries.size();
        found[i] = QRect(at, QSize(width, height));
        at.rx() += width;
    }
    return found;
}

int ToolbarLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int bottom = rowHeight();
    for (const QRect& place : places({0, 0, width - margins.left() - margins.right(), 0}))
        bottom = std::max(bottom, place.bottom() + 1);
    return bottom + margins.top() + margins.bottom();
}

QSize ToolbarLayout::sizeHint() const { return QSize(rowWidth(), rowHeight()).grownBy(contentsMargins()); }

/// One button and the extension button.
QSize ToolbarLayout::minimumSize() const
{
    return QSize(extensionWidth() + rowHeight(), rowHeight()).grownBy(contentsMargins());
}

void ToolbarLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    const QRect inner = area.marginsRemoved(contentsMargins());
    const std::vector<QRect> found = places(inner);
    bool leftOut = false;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries[i];
        if (entry.item->isEmpty()) continue;
        entry.item->widget()->setGeometry(found[i].isEmpty() ? QRect(0, 0, 0, 0) : found[i]);
        leftOut = leftOut || (!entry.separator && found[i].isEmpty());
    }
    const int width = extensionWidth();
    m_extension->setGeometry(inner.left() + inner.width() - width, inner.top(), width, rowHeight());
    m_extension->setVisible(leftOut);
}

} // namespace tarvex
