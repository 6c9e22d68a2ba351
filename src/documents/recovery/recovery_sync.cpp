#include "documents/recovery/recovery_sync.h"

#include <utility>

namespace tarvex {

bool syncFurther(JournalRecord& journal)
{
    if (!journal.Out || !journal.Out->isSynced()) return false;
    const bool ended = std::exchange(journal.Syncing, false);
    if (journal.Unsynced && journal.Out->sync()) {
        journal.Unsynced = false;
        journal.Syncing = true;
    }
    return ended;
}

void closeFile(JournalRecord& journal)
{
    if (journal.Out && journal.Syncing) journal.Closing.push_back(std::move(journal.Out));
    journal.Out.reset();
    journal.Unsynced = journal.Syncing = false;
    closeEnded(journal);
}

bool closeEnded(JournalRecord& journal)
{
    std::erase_if(journal.Closing, [](const std::unique_ptr<AppendFile>& file) {
        try {
            return file->isSynced();
        } catch (const RuntimeError&) { // the file is no longer needed
            return true;
        }
    });
    return journal.Closing.empty();
}

} // namespace tarvex
