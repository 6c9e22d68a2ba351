#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>
#include <vector>

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

/// What became of a document's file since the document last read or wrote it.
struct FileNews {
    enum class Kind {
        None,
        Changed,    ///< other contents, neither the document's last ones nor its present text
        Gone,       ///< there is no such file
        Unreadable, ///< there is something, and it can't be read as a file
        TooLarge,   ///< it is larger than any text that is opened
    };
    Kind kind = Kind::None;
    FileSum sum = {}; ///< of the contents, as far as they were read
    bool operator==(const FileNews&) const = default;
};
/// A document that never read or wrote its file has none. Never throws.
FileNews fileNews(const Editor& editor, const Side& side);

enum class Overwriting { Agreed, UnderAnotherName, Cancelled };
/// Asks the user when the file was changed outside, again for each further change. Agreed: the outside version, if any,
/// is in the backup directory. Throws RuntimeError when it can't be copied there.
Overwriting agreeOnOverwriting(Editor& editor, const Side& side);

/// Whether there is a file at `path`, and it has none of these contents or can't be read.
bool holdsSomethingElse(const Editor& editor, const std::string& path, const std::vector<FileSum>& harmless);
/// Copies a file into the backup directory, under a name that no other file gets, and returns the copy's path. Throws
/// RuntimeError.
std::string keepOutsideVersion(Editor& editor, const std::string& path);
/// Whether a name is of the kind that keepOutsideVersion gives.
bool isOutsideVersion(std::string_view name);

} // namespace tarvex
