#pragma once

#include "viewer/view_image.h"

namespace tarvex {

// Where the picture stands in its frame, and how large.

/// Of one turn of the wheel.
constexpr double zoomStep = 1.25;

/// The frame fills the window but for the scroll bars, which show where the picture is larger; the picture starts at
/// the frame's origin.
void RepositionControls(ViewImage& window);
void HScroll1_Change(ViewImage& window);
void VScroll1_Change(ViewImage& window);

/// Zooms by the factor; the point of the picture at x, y of the frame stays there as far as the bars allow it.
void zoomAt(ViewImage& window, double factor, int x, int y);
void zoomAtMiddle(ViewImage& window, double factor);
/// A picture larger than the window is shown as a whole; a smaller one in its own size.
void zoomToFit(ViewImage& window);
void zoomToActualSize(ViewImage& window);

} // namespace tarvex
