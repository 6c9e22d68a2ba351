#pragma once

#include "support/test_program.h"

#include <functional>
#include <vector>

namespace tarvex {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* su = "c:\\tm\\b50progs\\su.b50";

/// Something that the user, another program or the time does.
struct Act {
    const char* name;
    std::function<void(TestProgram&, Editor&)> run;
};

const std::vector<Act>& keyActs();    ///< keys, mouse and timers
const std::vector<Act>& fileActs();   ///< files that come, go, change or can't be written, and new starts
const std::vector<Act>& windowActs(); ///< the windows beside the document window, and insertions by them

} // namespace tarvex
