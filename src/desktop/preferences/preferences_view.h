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

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addPage(QTabWidget& tabs, QWidget* page);
    void clearAccessKeys(QTabWidget& tabs);

    Preferences& m_preferences;
};

/// Lets the dialogues show the preferences and what they ask.
void addPreferencesForm(QtDialogues& dialogues, Preferences& preferences, QWidget* parent);

} // namespace tarvex
