#pragma once

#include "platform/controls.h"

#include <vector>

namespace tarvex {

/// A straight line in the coordinates of its field.
struct Stroke {
    float x1;
    float y1;
    float x2;
    float y2;
    Colour colour;
    bool dotted = false;
    bool operator==(const Stroke&) const = default;
};

/// A field that keeps what is drawn on it. The strokes gather here until the view has painted them.
class DrawingField {
public:
    explicit DrawingField(Colour background) : m_background(background) {}

    Colour background() const { return m_background; }
    /// The same on both axes: the coordinates at the left or upper and at the right or lower edge.
    void setScale(float low, float high)
    {
        m_low = low;
        m_high = high;
    }
    float low() const { return m_low; }
    float high() const { return m_high; }

    /// Everything drawn so far is gone.
    void Cls()
    {
        m_strokes.clear();
        m_cleared = true;
    }
    void line(float x1, float y1, float x2, float y2, Colour colour, bool dotted = false)
    {
        m_strokes.push_back({x1, y1, x2, y2, colour, dotted});
    }

    /// Those that aren't painted yet, in their order.
    const std::vector<Stroke>& strokes() const { return m_strokes; }
    /// Whether the field is to be cleared before they are painted.
    bool isCleared() const { return m_cleared; }
    void painted()
    {
        m_strokes.clear();
        m_cleared = false;
    }
    /// Asks the view to paint them now.
    void Refresh() const { refreshWanted(); }
    Signal<> refreshWanted;

private:
    Colour m_background;
    float m_low = 0;
    float m_high = 65535;
    std::vector<Stroke> m_strokes;
    bool m_cleared = true;
};

} // namespace tarvex
