#include "platform/dos_devices.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <array>

namespace tarvex {

bool isDosDevice(std::string_view name)
{
    constexpr std::array<std::string_view, 13> devices{"con",  "nul",  "aux",  "prn",  "com1",     "com2",  "com3",
                                                       "com4", "lpt1", "lpt2", "lpt3", "emmxxxx0", "clock$"};
    const std::string_view stem = name.substr(0, name.find('.'));
    return std::find(devices.begin(), devices.end(), lowerUtf8(stem)) != devices.end();
}

} // namespace tarvex
