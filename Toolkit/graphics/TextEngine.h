// What draws text. The desktop installs its own; without one a small built-in font serves.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit
{

enum class FontStyle
{
    Regular,
    Bold
};

// Where a character stands in its line, in coordinates from the line's left edge: `leading` is the edge at which its
// reader comes to it, the right one where texts are written from right to left.
struct CharacterPlace
{
    int leading = 0, trailing = 0;

    int Left() const { return std::min(leading, trailing); }
    int Right() const { return std::max(leading, trailing); }
    friend bool operator==(const CharacterPlace&, const CharacterPlace&) = default;
};

// Texts are single lines in UTF-8; whatever bytes come, an engine draws something for each.
class TOOLKIT_API TextEngine
{
public:
    virtual ~TextEngine() = default;

    // In coordinates, at the screen's scale: from one line to the next, the same for both styles; a text's width.
    virtual int LineHeight() const = 0;
    virtual int Measure(std::string_view text, FontStyle style) = 0;

    // The places of the characters that begin at these bytes, the first at 0, each reaching to the next one. As it
    // stands here for engines that draw from left to right; it measures as often as there are characters.
    virtual std::vector<CharacterPlace> Places(std::string_view text, std::span<const std::size_t> starts,
                                               FontStyle style);

    // Draws the text, at the surface's scale, with its line's top left corner at `at`, only inside `clip` (inside the
    // surface), both in pixels.
    virtual void Draw(Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
                      FontStyle style) = 0;
};

// The engine in use: the one installed, else the built-in font.
TOOLKIT_API TextEngine& CurrentTextEngine();
TOOLKIT_API void InstallTextEngine(TextEngine* pEngine); // borrowed; NULL brings back the built-in font
TOOLKIT_API TextEngine& BuiltinTextEngine();             // the same pixels on every machine

// Does the code point stand on the one before it, without a width of its own? No text is cut before one.
TOOLKIT_API bool IsCombiningMark(char32_t c);

// The text, cut with "..." at its end so that it is no wider than `width`; whole when it fits. Cuts between
// code points. A width too small for the dots gives the dots. Asks the engine a logarithmic number of times.
TOOLKIT_API std::string Ellipsize(std::string_view text, int width, FontStyle style);

} // namespace toolkit
