#pragma once

#include <array>

namespace tarvex {

/// The numbers by which windows name the pages of the handbook.
namespace helpTopic {
constexpr int tour = 100; ///< for the newcomer
constexpr int colourSelector = 1400;
constexpr int safeinOverview = 2500;
constexpr int rawCodes = 2510;
constexpr int findPage = 3100; ///< the tabs of the find window follow each other: find, replace, go to a line
constexpr int outsideChanges = 3200;
constexpr int composer = 4100;
constexpr int firstPreferencesPage = 5200; ///< and so do the pages of the preferences; that of WinLoad has no number
constexpr int importing = 5300;
constexpr int templateEditor = 6100;
constexpr int imageViewer = 6200;
constexpr int printing = 6210;
constexpr int handbook = 6300;
constexpr int joystickAnalyser = 7021;
constexpr int controllerAnalyser = 7100;
constexpr int games = 7300;
constexpr int favourites = 8200;
constexpr int macroWizard = 9010;
constexpr int speedy = 9020;
constexpr int joystickWizard = 9030;
constexpr int slashWizard = 9040;
constexpr int titles = 9050;
constexpr int headings = 9060;
constexpr int remStatements = 9070;
constexpr int spiking = 9410;
} // namespace helpTopic

/// All of them, in order.
inline constexpr std::array helpTopics = {100,  1400, 2500, 2510, 3100, 3101, 3102, 3200, 4100, 5200, 5201, 5202,
                                          5203, 5204, 5205, 5206, 5208, 5300, 6100, 6200, 6210, 6300, 7021, 7100,
                                          7300, 8200, 9010, 9020, 9030, 9040, 9050, 9060, 9070, 9410};

} // namespace tarvex
