#include "HostKit/pictures/Drawing.h"

#include "Toolkit/graphics/Pixels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hostkit
{
namespace
{

Vec operator-(Vec a, Vec b)
{
    return {a.x - b.x, a.y - b.y};
}
double Dot(Vec a, Vec b)
{
    return a.x * b.x + a.y * b.y;
}
double Length(Vec a)
{
    return std::sqrt(Dot(a, a));
}

double DistanceToSegment(Vec p, Vec a, Vec b)
{
    const Vec along = b - a;
    const double length = Dot(along, along);
    const double t = length > 0 ? std::clamp(Dot(p - a, along) / length, 0.0, 1.0) : 0;
    return Length(p - Vec{a.x + along.x * t, a.y + along.y * t});
}

// Does a ray from p to the right cross the edge?
bool Crosses(Vec p, Vec a, Vec b)
{
    return (a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x;
}

double Mix(double from, double to, double t)
{
    return from + (to - from) * t;
}

toolkit::Pixel Premultiplied(const Ink& ink, double y, double coverage)
{
    const double t = std::clamp((y - ink.yTop) / (ink.yBottom - ink.yTop), 0.0, 1.0);
    const double alpha = std::clamp(coverage, 0.0, 1.0) * ink.opacity;
    const auto channel = [&](int top, int bottom) {
        return static_cast<toolkit::Pixel>(std::lround(Mix(top, bottom, t) * alpha));
    };
    return static_cast<toolkit::Pixel>(std::lround(255 * alpha)) << 24 |
           channel(GetRValue(ink.top), GetRValue(ink.bottom)) << 16 |
           channel(GetGValue(ink.top), GetGValue(ink.bottom)) << 8 | channel(GetBValue(ink.top), GetBValue(ink.bottom));
}

} // namespace

Shape Circle(Vec center, double radius)
{
    return [=](Vec p) { return Length(p - center) - radius; };
}

Shape RoundRect(Vec topLeft, Vec bottomRight, double radius)
{
    const Vec center{(topLeft.x + bottomRight.x) / 2, (topLeft.y + bottomRight.y) / 2};
    const Vec core{(bottomRight.x - topLeft.x) / 2 - radius, (bottomRight.y - topLeft.y) / 2 - radius};
    return [=](Vec p) {
        const Vec out{std::abs(p.x - center.x) - core.x, std::abs(p.y - center.y) - core.y};
        const Vec beyond{std::max(out.x, 0.0), std::max(out.y, 0.0)};
        return Length(beyond) + std::min(std::max(out.x, out.y), 0.0) - radius;
    };
}

Shape Polygon(std::vector<Vec> corners)
{
    return [corners = std::move(corners)](Vec p) {
        double distance = std::numeric_limits<double>::max();
        bool inside = false;
        for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
            distance = std::min(distance, DistanceToSegment(p, corners[i], corners[j]));
            inside ^= Crosses(p, corners[i], corners[j]);
        }
        return inside ? -distance : distance;
    };
}

Shape Stroke(std::vector<Vec> points, double width)
{
    return [points = std::move(points), width](Vec p) {
        double distance = Length(p - points.front());
        for (std::size_t i = 1; i < points.size(); ++i)
            distance = std::min(distance, DistanceToSegment(p, points[i - 1], points[i]));
        return distance - width / 2;
    };
}

Shape operator|(Shape a, Shape b)
{
    return [a = std::move(a), b = std::move(b)](Vec p) { return std::min(a(p), b(p)); };
}

Shape operator&(Shape a, Shape b)
{
    return [a = std::move(a), b = std::move(b)](Vec p) { return std::max(a(p), b(p)); };
}

Shape operator-(Shape a, Shape b)
{
    return [a = std::move(a), b = std::move(b)](Vec p) { return std::max(a(p), -b(p)); };
}

Shape Outline(Shape shape, double width)
{
    return [shape = std::move(shape), width](Vec p) {
        const double distance = shape(p);
        return std::max(distance, -distance - width);
    };
}

Drawing::Drawing(int extent, double units)
    : m_surface(CSize(extent, extent), toolkit::ScreenScale()), m_pixel(units / m_surface.Width())
{}

template <class Coverage>
void Drawing::Blend(Coverage coverage, const Ink& ink)
{
    for (int y = 0; y < m_surface.Height(); ++y) {
        toolkit::Pixel* const row = m_surface.Row(y);
        for (int x = 0; x < m_surface.Width(); ++x) {
            const Vec at{(x + 0.5) * m_pixel, (y + 0.5) * m_pixel};
            if (const double part = coverage(at); part > 0)
                row[x] = toolkit::Over(Premultiplied(ink, at.y, part), row[x]);
        }
    }
}

void Drawing::Fill(const Shape& shape, const Ink& ink)
{
    Blend([&](Vec p) { return 0.5 - shape(p) / m_pixel; }, ink);
}

void Drawing::Shade(const Shape& shape, double reach, double opacity)
{
    const auto softly = [&](Vec p) {
        const double left = std::clamp(1 - shape(p) / reach, 0.0, 1.0);
        return left * left * opacity;
    };
    Blend(softly, Ink(RGB(0, 0, 0)));
}

} // namespace hostkit
