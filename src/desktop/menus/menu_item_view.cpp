#include "desktop/menus/menu_item_view.h"

#include <QAction>

namespace tarvex {

namespace {

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

void bindItem(MenuItem& item, QAction& action, Bindings& bindings, const QString& shownKeys)
{
    bindCommand(item, action, bindings);
    bindings.bind(item.Caption, [&action, shownKeys](const std::string& caption) {
        action.setText(shownKeys.isEmpty() ? toQt(caption) : toQt(caption) + u'\t' + shownKeys);
    });
}

void bindPlainItem(MenuItem& item, QAction& action, Bindings& bindings)
{
    bindCommand(item, action, bindings);
    bindings.bind(item.Caption, [&action](const std::string& caption) {
        QString text = withoutAccessKeys(toQt(caption));
        for (QChar& character : text) {
            if (!character.isPrint()) character = u' '; // a tab would part the keys from the caption
        }
        action.setText(text);
    });
}

} // namespace tarvex
