#include "platform/dos_devices.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(IsDosDevice, NamesOfDevicesAreInAnyCaseAndWithAnyExtension)
{
    for (const char* name : {"con", "NUL", "Com1", "lpt3.rtf", "prn.b50.txt", "clock$"})
        EXPECT_TRUE(isDosDevice(name)) << name;
}

TEST(IsDosDevice, NamesThatOnlyBeginLikeOneAreNot)
{
    for (const char* name : {"", "console", "com", "com5", "a.con", ".con", "null"})
        EXPECT_FALSE(isDosDevice(name)) << name;
}

} // namespace
} // namespace tarvex
