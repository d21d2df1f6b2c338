#include "Editor/widgets/SizeSlider.h"

#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
#include <cmath>

namespace editor
{
namespace
{

constexpr int kMargin = 2 * kSpace;
constexpr int kGrooveHeight = 2;
constexpr CSize kKnob(8, 16);
constexpr int kStep = 8; // sizes between which nobody sees a difference

} // namespace

BEGIN_MESSAGE_MAP(CSizeSlider, CSlider)
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CRect CSizeSlider::Groove() const
{
    CRect groove = Client();
    groove.DeflateRect(kMargin, 0);
    groove.top = groove.CenterPoint().y - kGrooveHeight / 2;
    groove.bottom = groove.top + kGrooveHeight;
    return groove;
}

CPoint CSizeSlider::PlaceOf(int nSize) const
{
    const CRect groove = Groove();
    const double part = std::log2(1.0 * nSize / m_nLeast) / std::log2(1.0 * m_nMost / m_nLeast);
    return {groove.left + static_cast<int>(std::lround(part * groove.Width())), groove.CenterPoint().y};
}

void CSizeSlider::Draw(HDC hdc)
{
    const CPoint knob = PlaceOf(m_events.ask());
    FillSolidRect(hdc, Groove(), GetSysColor(COLOR_GRAYTEXT));
    FillRoundRect(hdc, CRect(knob - CPoint(kKnob.cx / 2, kKnob.cy / 2), kKnob), kKnob.cx / 2,
                  GetSysColor(COLOR_HIGHLIGHT));
}

BOOL CSizeSlider::OnMouseWheel(UINT, short zDelta, CPoint)
{
    m_events.step(zDelta > 0 ? 1 : -1);
    return TRUE;
}

void CSizeSlider::PointAt(CPoint point)
{
    const CRect groove = Groove();
    if (groove.Width() <= 0)
        return;
    const double part = std::clamp(1.0 * (point.x - groove.left) / groove.Width(), 0.0, 1.0);
    AccSetValue(m_nLeast * std::pow(1.0 * m_nMost / m_nLeast, part));
}

void CSizeSlider::AccSetValue(double value)
{
    const double size = std::clamp(value, 1.0 * m_nLeast, 1.0 * m_nMost);
    m_events.set(static_cast<int>(std::lround(size / kStep)) * kStep);
    Invalidate();
}

} // namespace editor
