#include "testers/joystick_choice.h"

namespace tarvex {

namespace {

constexpr std::array<const char*, axisRole::count> axisKeys = {"AxisX", "AxisY", "AxisThrottle", "AxisRudder"};
constexpr std::size_t longestName = 300;

} // namespace

JoystickChoice readJoystickChoice(const ProfileFile& ini)
{
    JoystickChoice choice;
    choice.name = ini.readString(joystickSection, "Name", "", longestName);
    choice.guid = ini.readString(joystickSection, "Guid", "", longestName);
    choice.number = ini.readInt(joystickSection, "Number", 0);
    for (std::size_t role = 0; role < axisKeys.size(); ++role)
        choice.axes[role] = ini.readInt(joystickSection, axisKeys[role], axisByGuess);
    return choice;
}

void writeJoystickChoice(ProfileFile& ini, const JoystickChoice& choice)
{
    const ProfileFile::Batch together(ini);
    ini.writeString(joystickSection, "Name", choice.name);
    ini.writeString(joystickSection, "Guid", choice.guid);
    ini.writeString(joystickSection, "Number", std::to_string(choice.number));
    for (std::size_t role = 0; role < axisKeys.size(); ++role)
        ini.writeString(joystickSection, axisKeys[role], std::to_string(choice.axes[role]));
}

} // namespace tarvex
