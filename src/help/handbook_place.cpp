#include "help/handbook_place.h"

#include "help/handbook.h"

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

void readHandbookPlace(Handbook& handbook)
{
    const Steps steps;
    Form& form = handbook.form;
    const Desktop& desktop = handbook.editor.platform.desktop;
    steps([&] {
        const ProfileFile& ini = handbook.editor.shared.platformIni;
        for (const PlaceKey& one : placeKeys) {
            const auto asIs = static_cast<int>(std::lround((form.*one.value).get()));
            form.*one.value = static_cast<float>(ini.readInt(section, one.key, asIs));
        }
    });
    form.Left = onScreen(form.Left, desktop.screenWidth());
    form.Top = onScreen(form.Top, desktop.screenHeight());
    if (form.Width < leastSize || form.Height < leastSize) { // the view has a size of its own
        form.Width = 0.0F;
        form.Height = 0.0F;
    }
}

void saveHandbookPlace(const Handbook& handbook)
{
    const Steps steps;
    const Form& form = handbook.form;
    ProfileFile& ini = handbook.editor.shared.platformIni;
    const auto write = [&ini](std::string_view key, const std::string& value) {
        if (ini.readString(section, key, "") != value) ini.writeString(section, key, value);
    };
    if (form.State != WindowState::Minimised) {
        for (const PlaceKey& one : placeKeys)
            steps([&] { write(one.key, std::to_string(std::lround((form.*one.value).get()))); });
    }
    if (!handbook.Target.get().empty()) steps([&] { write(pageKey, handbook.Target.get()); });
}

std::string lastHandbookPage(const Handbook& handbook)
{
    std::string page = handbook.Target.get();
    const Steps steps;
    if (page.empty()) steps([&] { page = handbook.editor.shared.platformIni.readString(section, pageKey, ""); });
    return page;
}

} // namespace tarvex
