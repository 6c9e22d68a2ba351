#include "help/handbook_place.h"

#include "platform/platform.h"
#include "shell/errors.h"
#include "shell/tool_form.h"

#include <cmath>

namespace tarvex {

namespace {

constexpr std::string_view section = "Handbook";
constexpr std::string_view pageKey = "Page";
constexpr float leastSize = 200.0F * twipsPerPixel; ///< a smaller one is that of a damaged file

struct PlaceKey {
    std::string_view key;
    Property<float> Form::*value;
};
constexpr PlaceKey placeKeys[] = {
    {"Left", &Form::Left}, {"Top", &Form::Top}, {"Width", &Form::Width}, {"Height", &Form::Height}};

} // namespace

void readHandbookPlace(Form& form, const ProfileFile& ini, const Desktop& desktop)
{
    for (const PlaceKey& one : placeKeys) {
        const auto asIs = static_cast<int>(std::lround((form.*one.value).get()));
        form.*one.value = static_cast<float>(ini.readInt(section, one.key, asIs));
    }
    form.Left = onScreen(form.Left, desktop.screenWidth());
    form.Top = onScreen(form.Top, desktop.screenHeight());
    if (form.Width < leastSize || form.Height < leastSize) {
        form.Width = 0.0F;
        form.Height = 0.0F;
    }
}

void saveHandbookPlace(const Form& form, const std::string& page, ProfileFile& ini)
{
    const Steps steps; // a file that can't be written is no reason to keep the window open
    const auto write = [&](std::string_view key, const std::string& value) {
        steps([&] { ini.writeString(section, key, value); });
    };
    for (const PlaceKey& one : placeKeys)
        if (form.State != WindowState::Minimised) write(one.key, std::to_string(std::lround((form.*one.value).get())));
    if (!page.empty()) write(pageKey, page);
}

std::string lastHandbookPage(const ProfileFile& ini) { return ini.readString(section, pageKey, ""); }

} // namespace tarvex
