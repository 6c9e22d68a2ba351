#include "language/commands/side_caret.h"

#include <algorithm>

namespace tarvex {

void putCaret(Side& side, std::int64_t position)
{
    side.pane.setSelStart(std::max<std::int64_t>(position, 0));
    side.Caret = side.pane.SelStart();
}

} // namespace tarvex
