#pragma once

#include "documents/recovery/journal_record.h"

namespace tarvex {

// Syncs journals in the background, so that they survive a power failure. Nothing here waits for the disk.

/// Looks how the last sync of the open file has ended, and has what was written since go to the disk. Throws
/// RuntimeError when the disk didn't take it. True: one has ended well, and the file is safe as it was at its begin.
bool syncFurther(JournalRecord& journal);

/// Nothing more is written to the open file. One that the disk is busy with is closed when that is over.
void closeFile(JournalRecord& journal);
/// Closes what has ended meanwhile. True: there are none left.
bool closeEnded(JournalRecord& journal);

} // namespace tarvex
