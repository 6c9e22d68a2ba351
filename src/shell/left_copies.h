#pragma once

#include "platform/dialogues.h"

#include <string>
#include <vector>

namespace tarvex {

/// Informs the user of copies that an interrupted save has left: the files they belong to may be half written.
/// No copies, no box.
void reportLeftCopies(Dialogues& dialogues, const std::vector<std::string>& paths);

} // namespace tarvex
