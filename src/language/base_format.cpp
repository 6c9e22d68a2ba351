#include "language/base_format.h"

namespace tarvex {

void writeBaseFormat(Pane& pane, const Settings& settings, Colour colour)
{
    pane.setSelStart(0);
    pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
    pane.setSelIndent(paragraphIndent);
    pane.setSelFontName(settings.TextFontName);
    pane.setSelBold(settings.TextFontBold == 1);
    pane.setSelItalic(false);
    pane.setSelUnderline(false);
    pane.setSelFontSize(settings.TextFontSize);
    pane.setSelColor(colour);
    pane.setSelStart(0);
    pane.setSelLength(0);
}

void setPaneFont(Pane& pane, const Settings& settings)
{
    pane.setFont({settings.TextFontName, static_cast<float>(settings.TextFontSize), settings.TextFontBold == 1});
}

} // namespace tarvex
