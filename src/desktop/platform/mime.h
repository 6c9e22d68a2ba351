#pragma once

#include "platform/platform.h"

#include <memory>

class QMimeData;

namespace tarvex {

/// Converts between the clipboard's contents and their form in other programs. RTF is offered under every name that
/// word processors use for it.
std::unique_ptr<QMimeData> toMime(const ClipboardContent& content);
ClipboardContent fromMime(const QMimeData& data);
/// Paths of the files of this machine that a drag brings.
QStringList localFiles(const QMimeData& data);
bool holdsContent(const QMimeData& data);

} // namespace tarvex
