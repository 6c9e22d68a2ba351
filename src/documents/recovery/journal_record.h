#pragma once

#include "documents/recovery/recovery_format.h"
#include "documents/text/rich_text.h"
#include "platform/files.h"
#include "platform/signal.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tarvex {

/// The journal of one document's unsaved edits.
struct JournalRecord {
    RichText Base;               ///< the text that was opened or saved last
    std::optional<FileSum> File; ///< the file that it stands in; none: in no file
    std::int64_t Length = 0;     ///< characters of the text, as far as the journal knows it

    /// Characters that the text still has from before the edits that aren't written yet.
    struct Unchanged {
        std::int64_t before = 0;
        std::int64_t after = 0;
    };
    std::optional<Unchanged> Unwritten;

    std::unique_ptr<AppendFile> Out; ///< none while there is nothing to keep, or it can't be kept
    std::uint64_t Number = 0;        ///< of the journal that is written; 0: there is none
    std::uint64_t Replaced = 0;      ///< of the one before, until the disk has the new one for certain; 0: none
    std::uint64_t Chain = 0;         ///< check sum of its records
    std::uint64_t Size = 0;
    bool Unsynced = false; ///< the disk hasn't been given all of it
    bool Syncing = false;  ///< the disk has been given something, and hasn't said yet that it has it
    std::vector<std::unique_ptr<AppendFile>> Closing; ///< those that the disk is still busy with
    bool Failed = false;                              ///< couldn't be written; it is tried again later
    bool Held = false;                                ///< edits are gathered, and written when this is over
    Connection following;
};

} // namespace tarvex
