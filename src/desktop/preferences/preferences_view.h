#pragma once

#include "desktop/form_window.h"
#include "preferences/preferences.h"

class QTabWidget;

namespace tarvex {

class QtDialogues;

/// Window of the preferences: a page a tab. A page that has no room scrolls.
class PreferencesView : public FormWindow {
    Q_OBJECT
public:
    PreferencesView(Preferences& preferences, QWidget* parent);

private:
    void addPage(QTabWidget& tabs, QWidget* page);
};

/// Lets the dialogues show the preferences.
void addPreferencesForm(QtDialogues& dialogues, Preferences& preferences, QWidget* parent);

} // namespace tarvex
