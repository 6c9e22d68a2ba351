#pragma once

#include "preferences/preferences.h"

class QWidget;

namespace tarvex {

class Bindings;

// The pages of the preferences, each with all its controls under their own names. The caller owns them.

QWidget* fileLocationsPageView(FileLocationsPage& page, Bindings& bindings);
QWidget* coloursPageView(ColoursPage& page, Bindings& bindings);
QWidget* appsPageView(AppsPage& page, Bindings& bindings);
QWidget* favouritesPageView(FavouritesPage& page, Bindings& bindings);
QWidget* gamesPageView(GamesPage& page, Bindings& bindings);
QWidget* savingPageView(SavingPage& page, Bindings& bindings);
QWidget* miscellaneousPageView(MiscellaneousPage& page, Bindings& bindings);
QWidget* winLoadPageView(WinLoadPage& page, Bindings& bindings);
QWidget* extrasPageView(ExtrasPage& page, Bindings& bindings);

} // namespace tarvex
