// Small pictures drawn in code: shapes with smooth edges, in units that fit any number of pixels, as fine as the
// screen.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/graphics/Surface.h"

#include <functional>
#include <vector>

namespace hostkit
{

struct Vec
{
    double x = 0, y = 0;
};

// The distance from a point to the shape's outline, in units; negative inside.
using Shape = std::function<double(Vec)>;

HOSTKIT_API Shape Circle(Vec center, double radius);
HOSTKIT_API Shape RoundRect(Vec topLeft, Vec bottomRight, double radius);
HOSTKIT_API Shape Polygon(std::vector<Vec> corners);             // its edges may not cross
HOSTKIT_API Shape Stroke(std::vector<Vec> points, double width); // a line through the points, with round ends
HOSTKIT_API Shape operator|(Shape a, Shape b);                   // what is in either
HOSTKIT_API Shape operator&(Shape a, Shape b);                   // what is in both
HOSTKIT_API Shape operator-(Shape a, Shape b);                   // what is in a alone
HOSTKIT_API Shape Outline(Shape shape, double width);            // a band inside the shape's edge

// A colour that need not cover, or a blend of two from one height to another.
struct Ink
{
    Ink(COLORREF color, double cover = 1) : top(color), bottom(color), opacity(cover) {}
    Ink(COLORREF from, COLORREF to, double yFrom, double yTo) : top(from), bottom(to), yTop(yFrom), yBottom(yTo) {}

    COLORREF top, bottom;
    double yTop = 0, yBottom = 1; // units
    double opacity = 1;
};

// A square picture of so many coordinates each way, transparent at first, on which `units` are counted each way.
class HOSTKIT_API Drawing
{
public:
    Drawing(int extent, double units);

    int Pixels() const { return m_surface.Width(); }

    void Fill(const Shape& shape, const Ink& ink);
    // A soft shadow of the shape: darkest at its edge, gone `reach` units outside.
    void Shade(const Shape& shape, double reach, double opacity);

    toolkit::Surface Take() { return std::move(m_surface); }

private:
    template <class Coverage>
    void Blend(Coverage coverage, const Ink& ink);

    toolkit::Surface m_surface;
    double m_pixel; // units
};

} // namespace hostkit
