// The built-in font's drawings, as they are read by the eye. Internal to the graphics layer.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace toolkit
{

// A drawing's rows: eight above the baseline, as high as capitals are, and two below it.
inline constexpr int kDrawnRows = 10;

// Some characters side by side: '#' is ink, '|' stands between them.
struct GlyphBand
{
    std::u32string_view characters;
    std::array<std::string_view, kDrawnRows> rows;
};

enum class MarkPlace
{
    Above,
    Below,
    BelowRight
};

// A mark that a letter carries; its combining character names it.
struct MarkDrawing
{
    char32_t mark;
    MarkPlace place;
    std::array<std::string_view, 3> rows; // from its top; empty ones at the end count for nothing
};

// Letters that are another letter with a mark, each followed by that letter.
struct MarkedLetters
{
    char32_t mark;
    std::u32string_view letters;
};

std::span<const GlyphBand> GlyphBands();
std::span<const MarkDrawing> MarkDrawings();
std::span<const MarkedLetters> AllMarkedLetters();

} // namespace toolkit
