#pragma once

#include "platform/controls.h"

#include <QColor>

namespace tarvex {

/// How the colours of a file are shown on the screen: as they are, or made lighter on a dark ground.
struct PaneColours {
    QColor ground;
    double leastContrast = 0; ///< that text is brought to; 0: it is shown as it is

    /// Of text in this colour.
    QColor text(Colour colour) const;
    /// The easier to read of black and white text, as it is shown.
    QColor readable() const;
    /// Text is made lighter on the ground.
    bool isDarkened() const { return leastContrast > 0; }
    bool operator==(const PaneColours&) const = default;
};

/// Those of text on this background, in the application's present style and palette. A background that the user has
/// chosen dark already stays.
PaneColours paneColours(Colour background);

} // namespace tarvex
