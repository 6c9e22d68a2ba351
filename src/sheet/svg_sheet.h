#pragma once

#include "sheet/sheet_layout.h"

#include <string>
#include <vector>

namespace tarvex {

/// The pages as one SVG document, one below the other.
std::string svgSheet(const std::vector<LaidOutPage>& pages);

/// Families of the texts, all of the same widths, for programs that choose among several.
inline constexpr const char* svgFonts = "Helvetica, Arial, 'Liberation Sans', sans-serif";

/// One page as an SVG document; the ids of its gradients begin with `prefix`.
std::string svgPage(const LaidOutPage& page, const std::string& prefix, const std::string& fonts = svgFonts);

/// A text for SVG and HTML.
std::string escapedForXml(std::string_view text);

} // namespace tarvex
