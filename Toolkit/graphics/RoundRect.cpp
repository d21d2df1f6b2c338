// Rectangles with round corners, as fine as the surface.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/GdiObjects.h"
#include "Toolkit/graphics/Pixels.h"

#include <cmath>

namespace
{

using toolkit::DeviceContext;
using toolkit::Pixel;

class RoundRect
{
public:
    RoundRect(const CRect& rect, int radius, Pixel pixel)
        : m_rect(rect), m_radius(std::min({radius, rect.Width() / 2, rect.Height() / 2})), m_pixel(pixel)
    {}

    void FillRow(Pixel* pRow, int y, int left, int right) const // all in pixels
    {
        const int depth = std::min(y - m_rect.top, m_rect.bottom - 1 - y);
        const int cut = depth < m_radius ? m_radius : 0;
        const int first = std::clamp(m_rect.left + cut, left, right),
                  end = std::clamp(m_rect.right - cut, first, right);
        toolkit::FillRow(pRow + first, end - first, m_pixel);
        for (int x = left; x < first; ++x)
            Blend(pRow[x], x - m_rect.left, depth);
        for (int x = end; x < right; ++x)
            Blend(pRow[x], m_rect.right - 1 - x, depth);
    }

private:
    // Counted from the corner, as far as its circle covers the pixel.
    void Blend(Pixel& on, int x, int y) const
    {
        const double distance = std::hypot(m_radius - x - 0.5, m_radius - y - 0.5);
        const double covered = std::clamp(m_radius + 0.5 - distance, 0.0, 1.0);
        toolkit::BlendRow(&on, 1, toolkit::ScalePixel(m_pixel, static_cast<BYTE>(std::lround(covered * 255))));
    }

    const CRect m_rect;
    const int m_radius;
    const Pixel m_pixel;
};

} // namespace

BOOL FillRoundRect(HDC hdc, const RECT& rect, int radius, COLORREF color)
{
    const DeviceContext* pContext = toolkit::FindContext(hdc);
    if (!pContext)
        return FALSE;
    const toolkit::PixelScale scale = pContext->Scale();
    const RoundRect shape(scale.ToPixels(CRect(rect) + pContext->Origin()), scale.ToPixels(radius),
                          toolkit::ToPixel(color));
    pContext->VisitVisible(rect, [&](const CRect& part) {
        for (int y = part.top; y < part.bottom; ++y)
            shape.FillRow(pContext->Target().Row(y), y, part.left, part.right);
    });
    return TRUE;
}
