// How a row's name is set below its picture: in up to two lines, the last one cut with dots when it must be.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/graphics/TextEngine.h"

#include <string>
#include <vector>

namespace toolkit
{

struct LabelLine
{
    std::string text;
    int width; // pixels
};

struct RowLabel
{
    std::vector<LabelLine> lines;
    CRect box; // client; holds the lines; empty without one
};

// Breaks between words, and behind hyphens and underscores; inside a word where the line would stay too empty, or
// where a name without spaces can be shown whole only so. Control characters count as spaces. Never wider than
// `width`, unless a single character or the dots alone are. No line for a text without visible characters. Measures a
// logarithmic number of times.
TOOLKIT_API std::vector<LabelLine> WrapLabel(std::string_view text, int width, int maxLines);

} // namespace toolkit
