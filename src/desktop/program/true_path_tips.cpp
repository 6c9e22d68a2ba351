#include "desktop/program/true_path_tips.h"

#include "desktop/text.h"
#include "platform/machine.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>

namespace tarvex {

namespace {

bool beginsAsPath(const QString& text)
{
    return text.size() > 3 && text[0].isLetter() && text[1] == u':' && text[2] == u'\\';
}

/// The text that the widget shows at a point.
QString textAt(const QWidget& widget, const QPoint& place)
{
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        const QAction* action = menu->actionAt(place);
        return action != nullptr ? action->data().toString() : QString();
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* list = qobject_cast<const QAbstractItemView*>(widget.parentWidget()))
        return list->indexAt(place).data().toString();
    return {};
}

QString asRichText(const QString& tip) { return Qt::mightBeRichText(tip) ? tip : wrappingTip(tip); }

} // namespace

TruePathTips::TruePathTips(const Platform& platform, QObject* parent) : QObject(parent), m_platform(platform)
{
    qApp->installEventFilter(this);
}

QString TruePathTips::truePath(const QString& text) const
{
    constexpr int longest = 1000; // characters
    if (!beginsAsPath(text)) return {};
    for (qsizetype end = std::min<qsizetype>(text.size(), longest); end > 3; end = text.lastIndexOf(u' ', end - 1)) {
        const std::string path = fromQt(text.left(end));
        if (m_platform.files.fileExists(path) || m_platform.files.directoryExists(path))
            return toQt(m_platform.machine.nativePath(path));
    }
    return {};
}

bool TruePathTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType()) return false;
    const auto& help = *static_cast<QHelpEvent*>(event);
    auto& widget = static_cast<QWidget&>(*watched);
    const QString path = truePath(textAt(widget, help.pos()));
    if (path.isEmpty()) return false;
    const QString own = widget.toolTip();
    QToolTip::showText(help.globalPos(),
                       (own.isEmpty() ? QString() : asRichText(own) + QStringLiteral("<br>")) + wrappingTip(path),
                       &widget);
    return true;
}

} // namespace tarvex
