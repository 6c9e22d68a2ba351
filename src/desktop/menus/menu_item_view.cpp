#include "desktop/menus/menu_item_view.h"

#include <QAction>
#include <QApplication>
#include <QFontMetrics>
#include <QScreen>

namespace tarvex {

namespace {

/// A tab would part the keys from the caption.
QString printable(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint() && !character.isSurrogate()) character = u' ';
    }
    return text;
}

/// A caption of any length as one that leaves the menu within the screen. File names differ at their ends.
QString cutInMiddle(const QString& caption)
{
    constexpr qsizetype alwaysFits = 40; // characters
    if (caption.size() <= alwaysFits) return caption;
    const int widest = QGuiApplication::primaryScreen()->availableSize().width() / 2;
    return QFontMetrics(QApplication::font("QMenu")).elidedText(caption, Qt::ElideMiddle, widest);
}

QString withoutMark(QString caption)
{
    const qsizetype mark = caption.indexOf(u'&');
    return mark < 0 ? caption : caption.remove(mark, 1);
}

void bindCommand(MenuItem& item, QAction& action, Bindings& bindings)
{
    action.setObjectName(toQt(item.Name));
    bindings.bind(item.Enabled, [&action, &item](bool on) { action.setEnabled(on && item.handler); });
    bindings.bind(item.Visible, [&action](bool on) { action.setVisible(on); });
    bindings.bind(item.Checked, [&action](bool on) {
        if (on) action.setCheckable(true); // a command that is never ticked has no box
        action.setChecked(on);
    });
    // The tick is the command's business, not the click's.
    QObject::connect(&action, &QAction::triggered, &action, [&item, &action] {
        item.Click();
        action.setChecked(item.Checked);
    });
}

} // namespace

void bindItem(MenuItem& item, QAction& action, Bindings& bindings, const QString& shownKeys, char accessKey)
{
    bindCommand(item, action, bindings);
    bindings.bind(item.Caption, [&action, shownKeys, accessKey](const std::string& caption) {
        const QString whole = printable(toQt(caption));
        const QString shown = cutInMiddle(whole);
        action.setText((accessKey != '\0' ? withAccessKey(shown, accessKey) : withOneAccessKey(shown)) +
                       (shownKeys.isEmpty() ? QString() : u'\t' + shownKeys));
        action.setToolTip(shown == whole ? QString() : wrappingTip(withoutMark(whole)));
    });
}

void bindPlainItem(MenuItem& item, QAction& action, Bindings& bindings)
{
    bindCommand(item, action, bindings);
    bindings.bind(item.Caption, [&action](const std::string& caption) {
        const QString whole = printable(toQt(caption));
        const QString shown = cutInMiddle(whole);
        action.setText(withoutAccessKeys(shown));
        action.setData(whole);
        action.setToolTip(shown == whole ? QString() : wrappingTip(whole));
    });
}

} // namespace tarvex
