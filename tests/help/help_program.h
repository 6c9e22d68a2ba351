#pragma once

#include "support/fake_help_system.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {

/// The started program with a handbook, a browser and a registry.
struct HelpTest : testing::Test {
    TestProgram t;
    FakeHelpSystem system;
    Help& help = t.program().help;

    HelpTest() { help.useSystem(system); }
};

} // namespace tarvex
