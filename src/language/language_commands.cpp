#include "language/language_commands.h"

#include "language/macro_commands.h"

namespace tarvex {

void wireLanguage(Editor& editor) { wireMacros(editor); }

} // namespace tarvex
