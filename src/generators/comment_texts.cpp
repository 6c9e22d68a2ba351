#include "generators/comment_texts.h"

#include <cstddef>

namespace tarvex {

namespace {

constexpr std::size_t titleWidth = 52;
constexpr std::size_t remAndBlank = 4;
constexpr std::size_t longestCentred = 50; ///< with "Rem ", exclusive

constexpr std::size_t dashesBesideHeading = 20;

constexpr std::string_view names[] = {
    "Game control",
    "Communications",
    "Avionics",
    "Aircraft Control",
    "Head Up Display",
    "Cockpit Views",
    "External views",
    "Smart Views",
    "Options",
    "Mission Planning",
    "Multiplayer",
    "Movement",
    "Weapons",
    "Navigation",
    "Engines",
    "Autopilot",
    "Damage",
    "ASE Controls",
    "IHADS",
    "TADS",
    "MFDs",
    "Targeting",
    "FCR",
    "Systems",
    "Virtual cockpit",
    "Throttle",
    "Flight controls",
    "Combat controls",
    "Lantirn",
    "Countermeasures",
    "Engagement",
    "Formation",
    "Refuel",
    "Airfield",
    "AWACS",
    "Wingmen",
    "Defence",
    "Cameras",
    "Display",
    "Modes",
    "Nozzles",
    "Panning controls",
    "Steering",
    "Sonar",
    "Views",
    "Radar",
    "Target selection",
    "Scan volume",
    "Electro-optical",
    "Harm",
    "View modifiers",
    "Additional views",
    "Simulation",
    "Radio",
    "Radio voice messaging",
    "Wingman commands",
};

/// Half of a number, rounded to the nearest whole one; a half goes to the even one.
std::size_t halfToEven(std::size_t number)
{
    const std::size_t half = number / 2;
    return number % 2 == 0 ? half : half + half % 2;
}

} // namespace

std::string centredTitleLine(std::string_view text)
{
    std::string line = "Rem ";
    if (text.size() + remAndBlank < longestCentred) line.append(halfToEven(titleWidth - text.size()), ' ');
    return line.append(text);
}

std::string headingRule(std::string_view heading)
{
    return "Rem " + std::string(heading.size() + dashesBesideHeading, '-');
}

std::span<const std::string_view> headingNames() { return names; }

} // namespace tarvex
