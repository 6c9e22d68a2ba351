#pragma once

#include "shell/shared.h"

namespace tarvex {

// Loaders that were used before, in Lists.ini. Entries are never removed and there is no limit; paths that differ in
// case are two entries.

/// Reads the list. While it is empty, the loader in use becomes its first entry.
void GetPreviousLoaders(Shared& shared);
/// Adds the loader in use at the end unless it is in the list already. No loader: nothing to add.
void SavePreviousLoaders(Shared& shared);

} // namespace tarvex
