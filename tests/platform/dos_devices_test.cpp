#include "platform/dos_devices.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(IsDosDevice, NamesOfDevicesAreInAnyCaseAndWithAnyExtension)
{
    for (const char* name : {"con", "NUL", "aux", "Com1", "com2", "com3", "com4", "lpt1", "LPT2", "lpt3.rtf",
                             "prn.b50.txt", "emmxxxx0", "clock$"})
        EXPECT_TRUE(isDosDevice(name)) << name;
}

TEST(IsDosDevice, NamesThatOnlyBeginLikeOneAreNot)
{
    for (const char* name :
         {"", "console", "com", "com5", "com0", "lpt0", "lpt4", "emmxxxx", "clock", "a.con", ".con", "null"})
        EXPECT_FALSE(isDosDevice(name)) << name;
}

} // namespace
} // namespace tarvex
