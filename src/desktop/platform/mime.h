#pragma once

#include "platform/platform.h"

#include <memory>

class QMimeData;

namespace tarvex {

/// What the program puts on the clipboard or into a drag, as other programs take it, and back. RTF goes by all the
/// names that word processors know it by.
std::unique_ptr<QMimeData> toMime(const ClipboardContent& content);
ClipboardContent fromMime(const QMimeData& data);
bool holdsContent(const QMimeData& data);

} // namespace tarvex
