#include "viewer/image_place.h"

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

constexpr double smallestZoom = 1.0 / 32;
constexpr double largestZoom = 16;

int zoomed(int pixels, double zoom) { return std::max(1, static_cast<int>(std::lround(pixels * zoom))); }

Placement pictureSize(const ViewImage& window)
{
    const auto& picture = window.Picture3.get();
    if (!picture) return {};
    return {.Width = zoomed(picture->width(), window.Zoom), .Height = zoomed(picture->height(), window.Zoom)};
}

void showBar(ScrollBar& bar, int picture, int frame)
{
    constexpr int largeFraction = 10;
    constexpr int smallFraction = 50;
    bar.Max = std::max(0, picture - frame);
    bar.LargeChange = std::max(1, bar.Max / largeFraction);
    bar.SmallChange = std::max(1, bar.Max / smallFraction);
    bar.Value = 0;
    bar.Visible = bar.Max > 0;
}

void scrollTo(ScrollBar& bar, double value)
{
    bar.Value = std::clamp(static_cast<int>(std::lround(value)), 0, bar.Max.get());
    if (bar.Change) bar.Change();
}

} // namespace

void RepositionControls(ViewImage& window)
{
    const Placement size = pictureSize(window);
    Placement frame{.Width = window.ScaleWidth, .Height = window.ScaleHeight};
    const bool vertical = size.Height > frame.Height;
    if (vertical) frame.Width = std::max(0, frame.Width - window.BarThickness);
    const bool horizontal = size.Width > frame.Width;
    if (horizontal) frame.Height = std::max(0, frame.Height - window.BarThickness);
    if (!vertical && size.Height > frame.Height) frame.Width = std::max(0, frame.Width - window.BarThickness);
    window.Picture2 = frame;
    window.Picture3Place = size;
    showBar(window.HScroll1, size.Width, frame.Width);
    showBar(window.VScroll1, size.Height, frame.Height);
}

void HScroll1_Change(ViewImage& window)
{
    Placement place = window.Picture3Place;
    place.Left = -window.HScroll1.Value;
    window.Picture3Place = place;
}

void VScroll1_Change(ViewImage& window)
{
    Placement place = window.Picture3Place;
    place.Top = -window.VScroll1.Value;
    window.Picture3Place = place;
}

void zoomAt(ViewImage& window, double factor, int x, int y)
{
    if (!window.Picture3.get()) return;
    const double before = window.Zoom;
    const double left = window.HScroll1.Value + x;
    const double top = window.VScroll1.Value + y;
    window.Zoom = std::clamp(before * factor, smallestZoom, largestZoom);
    RepositionControls(window);
    scrollTo(window.HScroll1, left * window.Zoom / before - x);
    scrollTo(window.VScroll1, top * window.Zoom / before - y);
}

void zoomAtMiddle(ViewImage& window, double factor)
{
    const Placement& frame = window.Picture2.get();
    zoomAt(window, factor, frame.Width / 2, frame.Height / 2);
}

void zoomToFit(ViewImage& window)
{
    const auto& picture = window.Picture3.get();
    if (!picture) return;
    const double across = static_cast<double>(window.ScaleWidth) / picture->width();
    const double down = static_cast<double>(window.ScaleHeight) / picture->height();
    window.Zoom = std::clamp(std::min({across, down, 1.0}), smallestZoom, 1.0);
    RepositionControls(window);
}

void zoomToActualSize(ViewImage& window)
{
    window.Zoom = 1;
    RepositionControls(window);
}

} // namespace tarvex
