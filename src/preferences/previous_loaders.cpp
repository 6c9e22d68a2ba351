#include "preferences/previous_loaders.h"

#include <algorithm>

namespace tarvex {

void GetPreviousLoaders(Shared& shared)
{
    shared.store.read(Access::GetPreviousLoaders, "PREFS GetPreviousLoaders");
    if (shared.settings.NumPreviousLoaders == 0 && !shared.settings.B50LoadPath.empty()) SavePreviousLoaders(shared);
}

void SavePreviousLoaders(Shared& shared)
{
    Settings& settings = shared.settings;
    if (settings.B50LoadPath.empty()) return;
    const std::vector<SettingText>& loaders = settings.Loader;
    if (std::find(loaders.begin(), loaders.end(), settings.B50LoadPath) != loaders.end()) return;
    settings.Loader.push_back(settings.B50LoadPath);
    settings.NumPreviousLoaders = static_cast<std::int16_t>(settings.Loader.size());
    shared.store.write(Access::SavePreviousLoaders, "PREFS SavePreviousLoaders");
}

} // namespace tarvex
