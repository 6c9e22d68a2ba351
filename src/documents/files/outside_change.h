#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>

namespace tarvex {

// Other programs may write to a document's file while it is open. Contents decide, not time stamps: some file systems
// keep whole seconds only, network ones change them afterwards, and a file that was merely touched is no news.

enum class OutsideChange {
    None, ///< the file holds what the document last read from it or wrote to it, or what is to be written; or there is
          ///< no file, so that writing loses nothing
    Changed, ///< it holds something else, or can't be read
    Unknown, ///< the document never read from it nor wrote to it
};
OutsideChange outsideChange(const Editor& editor, const Side& side);

enum class Overwriting { Agreed, UnderAnotherName, Cancelled };
/// Asks the user when the file was changed outside, again for each further change. Agreed: the outside version, if any,
/// is in the backup directory. Throws RuntimeError when it can't be copied there.
Overwriting agreeOnOverwriting(Editor& editor, const Side& side);

/// Copies the document's file into the backup directory, under a name that no other file gets. Throws RuntimeError.
std::string keepOutsideVersion(Editor& editor, const Side& side);
/// Whether a name is of the kind that keepOutsideVersion gives.
bool isOutsideVersion(std::string_view name);

} // namespace tarvex
