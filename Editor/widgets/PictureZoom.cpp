#include "Editor/widgets/PictureZoom.h"

#include <algorithm>
#include <cmath>

namespace editor
{
namespace
{

constexpr double kStepsToDouble = 2;

// Where a side of that length begins: in the middle of the room, or without a gap at its ends.
int Begin(int from, int room, int length, double middle)
{
    if (length <= room)
        return from + (room - length) / 2;
    return std::clamp(from + room / 2 - static_cast<int>(std::lround(middle * length)), from + room - length, from);
}

int Times(int length, double zoom)
{
    return std::max(1, static_cast<int>(std::lround(length * zoom)));
}

} // namespace

void PictureZoom::Step(int nSteps, CPoint at, const CRect& view, CSize full, double dFit)
{
    const double former = IsFit() ? dFit : m_dZoom;
    double next = std::exp2((std::round(std::log2(former) * kStepsToDouble) + nSteps) / kStepsToDouble);
    if ((former < 1) != (next < 1) && former != 1)
        next = 1;
    if (nSteps < 0 && next <= dFit)
        return Fit();
    SetTo(next, at, view, full, dFit);
}

void PictureZoom::SetTo(double dZoom, CPoint at, const CRect& view, CSize full, double dFit)
{
    const double former = IsFit() ? dFit : m_dZoom;
    const CPoint away = at - view.CenterPoint();
    m_dZoom = std::min(dZoom, kMost);
    m_dX += away.x * (1 / former - 1 / m_dZoom) / full.cx;
    m_dY += away.y * (1 / former - 1 / m_dZoom) / full.cy;
    TakeMiddleOf(view, Place(view, full));
}

void PictureZoom::Pan(CSize by, const CRect& view, CSize full)
{
    if (IsFit())
        return;
    CRect place = Place(view, full);
    place.OffsetRect(by.cx, by.cy);
    TakeMiddleOf(view, place);
    TakeMiddleOf(view, Place(view, full));
}

CRect PictureZoom::Place(const CRect& view, CSize full) const
{
    const CSize size(Times(full.cx, m_dZoom), Times(full.cy, m_dZoom));
    return {CPoint(Begin(view.left, view.Width(), size.cx, m_dX), Begin(view.top, view.Height(), size.cy, m_dY)), size};
}

void PictureZoom::TakeMiddleOf(const CRect& view, const CRect& place)
{
    m_dX = 1.0 * (view.CenterPoint().x - place.left) / place.Width();
    m_dY = 1.0 * (view.CenterPoint().y - place.top) / place.Height();
}

} // namespace editor
