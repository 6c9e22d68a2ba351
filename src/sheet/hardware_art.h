#pragma once

#include "shell/hardware/pictures.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A file of resources/hardware.
struct HardwareDrawing {
    std::string_view file; ///< without extension
    std::string_view svg;
};
constexpr std::size_t hardwareDrawingCount = 5;
extern const HardwareDrawing hardwareDrawings[hardwareDrawingCount];

/// The drawing of a picture.
std::string_view hardwareDrawing(PictureOf what);

/// A paint of a shape.
struct ArtPaint {
    enum class Kind { None, Colour, Gradient };
    Kind kind = Kind::None;
    std::uint32_t colour = 0; ///< 0xRRGGBB
    std::string gradient;     ///< its id
};

struct ArtGradient {
    struct Stop {
        double offset = 0;
        std::uint32_t colour = 0;
    };
    std::string id;
    std::array<double, 4> line{}; ///< x1, y1, x2, y2
    std::vector<Stop> stops;
    bool solid = true; ///< false: some of it lets through what is below
};

/// A shape of a drawing, in its order.
struct ArtShape {
    std::string path; ///< of absolute M, L, C, Q and z; empty for a text
    ArtPaint fill;
    ArtPaint stroke;
    double strokeWidth = 1;
    double strokeOpacity = 1;
    std::string text;
    double x = 0; ///< of the text
    double y = 0;
    double size = 0;
    bool isLabel = false; ///< a text beside the drawing, which has room to grow
    std::string anchor;   ///< "start", "middle", "end"
};

struct Art {
    std::vector<ArtGradient> gradients;
    std::vector<ArtShape> shapes;
};

/// Reads what scripts/draw-hardware writes: paths, circles, ellipses, texts and gradients. Elements and attributes that
/// it doesn't write are passed over.
Art readArt(std::string_view svg);

} // namespace tarvex
