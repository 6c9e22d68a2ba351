#pragma once

#include "documents/text/pane.h"
#include "shell/errors.h"

#include <string_view>

namespace tarvex {

/// Selects the statement that begins with `head` (bytes, a whole word in any case): up to the last character before the
/// next statement's head that is no line end. A statement of "PortB" begins four characters earlier; where there are
/// fewer, that step fails. False without such a head; the selection then stays.
bool selectStatement(Pane& pane, std::string_view head, const Steps& step);

} // namespace tarvex
