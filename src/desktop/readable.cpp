#include "desktop/readable.h"

#include "desktop/mixed.h"
#include "shell/dark_colours.h"

namespace tarvex {

Colour toColour(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

QColor readableMix(const QColor& ground, const QColor& ink, double share)
{
    constexpr double step = 0.05;
    QColor mix = mixed(ground, ink, share);
    while (share < 1 && contrastOf(toColour(mix), toColour(ground)) < readableContrast) {
        share += step;
        mix = mixed(ground, ink, share < 1 ? share : 1);
    }
    return mix;
}

} // namespace tarvex
