#pragma once

#include "preferences/extras_page.h"
#include "shell/errors.h"

#include <string>

namespace tarvex {

// The rows of the page "Extras" for what runs Windows and DOS programs.

void wireRunners(ExtrasPage& page);
void loadRunners(ExtrasPage& page);
/// Takes the rows into Platform.ini, each as a step of its own.
void takeRunners(ExtrasPage& page, const Steps& step);
void RunnerBrowse_Click(ExtrasPage& page, ExtrasPage::RunnerRow& row);
void RunnerTest_Click(ExtrasPage& page, ExtrasPage::RunnerRow& row);

/// What the answer of a runner to the question for its version means to the user.
std::string verdict(Runner which, const ProgramOutput& output);

} // namespace tarvex
