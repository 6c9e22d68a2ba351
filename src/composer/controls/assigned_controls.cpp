#include "composer/controls/assigned_controls.h"

#include "language/control_statements.h"
#include "shell/hardware/document_hardware.h"
#include "shell/hardware/hardware_profile.h"
#include "shell/hardware/hat_positions.h"

#include <algorithm>
#include <charconv>

namespace tarvex {

namespace {

using Statements = std::map<std::string, ControlStatement, std::less<>>;

/// A name, and the head of its statement in upper case.
struct NamedHead {
    std::string name;
    std::string head;
};

NamedHead ofButton(std::string name)
{
    const bool isRocker = name.starts_with("RKR");
    std::string head = isRocker ? name : "BTN " + name;
    return {std::move(name), std::move(head)};
}

std::vector<NamedHead> ofHat(std::string_view id, bool corners)
{
    int index = 0;
    std::from_chars(id.data() + std::string_view("HAT(").size(), id.data() + id.size(), index);
    const std::string hat = hatName(index);
    std::vector<NamedHead> names;
    for (const char* position : hatPositions) names.push_back(ofButton(hat + position));
    if (!corners || hat.size() == 1) return names;
    for (const char* corner : hatCorners) names.push_back(ofButton(hat + corner));
    return names;
}

std::vector<NamedHead> ofRotary(const PictureControl& control)
{
    if (control.name == "PORT") {
        std::vector<NamedHead> names;
        for (const char* number : {"1", "2", "3", "4"})
            names.push_back({std::string("PortB") + number, std::string("PORTB") + number});
        return names;
    }
    const std::string word = control.name == "Rudder"     ? "RDDR"
                             : control.name == "Throttle" ? "THR"
                                                          : std::string(control.name);
    return {{word, word}};
}

std::vector<NamedHead> namesOf(const PictureControl& control, bool corners)
{
    if (control.id == "TRIG") return {ofButton("TG1"), ofButton("TG2")};
    if (control.id.starts_with("HAT")) return ofHat(control.id, corners);
    if (control.id.starts_with("ROTARY")) return ofRotary(control);
    if (control.name.empty()) return {};
    return {ofButton(std::string(control.name))};
}

void add(std::vector<AssignedControl>& controls, const PictureControl& control, bool corners,
         const Statements& statements)
{
    for (NamedHead& named : namesOf(control, corners)) {
        AssignedControl& one = controls.emplace_back();
        one.id = control.id;
        one.name = std::move(named.name);
        const auto statement = statements.find(named.head);
        if (statement == statements.end()) continue;
        one.statement = statement->second.text;
        one.line = statement->second.line;
    }
}

} // namespace

std::vector<AssignedControl> assignedControls(std::span<const PictureOf> pictures, bool corners, std::string_view text)
{
    const Statements statements = controlStatements(text);
    std::vector<AssignedControl> controls;
    for (const PictureOf what : pictures) {
        for (const PictureControl& control : picture(what).controls) add(controls, control, corners, statements);
    }
    return controls;
}

std::vector<PictureOf> picturesOfDocument(std::string_view fileName, std::string_view text)
{
    const DocumentHardware hardware = hardwareOfDocument(fileName, text);
    std::vector<PictureOf> pictures{stickPicture(hardware.JoyName)};
    if (hardware.ThrottleName == throttle::tqs) pictures.push_back(PictureOf::Tqs);
    if (hardware.ThrottleName == throttle::wcs) pictures.push_back(wcsPicture(hardware.JoyName >= joystick::pFcs));
    return pictures;
}

std::vector<AssignedControl> controlsOfDocument(std::string_view fileName, std::string_view text)
{
    const std::vector<PictureOf> pictures = picturesOfDocument(fileName, text);
    const DocumentHardware hardware = hardwareOfDocument(fileName, text);
    const bool corners = hardware.JoyName < joystick::pFcs;
    std::vector<AssignedControl> controls = assignedControls(pictures, corners, text);
    // Only the F-22 Pro reads buttons of the game port.
    if (hardware.JoyName != joystick::f22Pro)
        std::erase_if(controls, [](const AssignedControl& control) { return control.id == "ROTARY(7)"; });
    return controls;
}

} // namespace tarvex
