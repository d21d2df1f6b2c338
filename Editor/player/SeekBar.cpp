#include "Editor/player/SeekBar.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

constexpr int kText = 190, kLeastTrack = 60; // pixels wide
constexpr int kGroove = 4, kKnob = 14;       // pixels high, the knob a disc

} // namespace

void CSeekBar::Show(int nAt, int nCount, std::string text)
{
    m_nAt = nAt;
    m_nCount = nCount;
    m_text = std::move(text);
    Invalidate();
}

std::optional<toolkit::AccRange> CSeekBar::AccValue()
{
    return m_nAt < 0 ? std::nullopt : std::optional(toolkit::AccRange{1, 1.0 * m_nCount, m_nAt + 1.0});
}

void CSeekBar::AccSetValue(double value)
{
    if (m_nCount > 0)
        m_seek(static_cast<int>(std::clamp<double>(value, 1, m_nCount)) - 1);
}

CRect CSeekBar::Track() const
{
    CRect track = Client();
    track.DeflateRect(2 * kSpace, 0);
    track.right -= kText;
    return track.Width() < kLeastTrack || m_nCount < 2 ? CRect() : track;
}

int CSeekBar::PlaceOf(int nFrame, const CRect& track) const
{
    const auto room = static_cast<std::int64_t>(track.Width() - kKnob);
    return static_cast<int>(track.left + kKnob / 2 + room * nFrame / (m_nCount - 1));
}

void CSeekBar::Draw(HDC hdc)
{
    CRect text = Client();
    text.right -= 2 * kSpace;
    text.left = std::max<int>(text.right - kText, 0);
    DrawTextLine(hdc, text, m_text, TextColor(COLOR_GRAYTEXT, BarColor()), Align::Right);
    const CRect track = Track();
    if (track.IsRectEmpty() || m_nAt < 0)
        return;
    const int x = PlaceOf(m_nAt, track), y = track.CenterPoint().y;
    const COLORREF done = GetSysColor(COLOR_HIGHLIGHT);
    FillSolidRect(hdc, {track.left, y - kGroove / 2, track.right, y + kGroove / 2}, LineColor());
    FillSolidRect(hdc, {track.left, y - kGroove / 2, x, y + kGroove / 2}, done);
    FillRoundRect(hdc, {x - kKnob / 2, y - kKnob / 2, x + kKnob / 2, y + kKnob / 2}, kKnob / 2, done);
}

void CSeekBar::PointAt(CPoint point)
{
    const CRect track = Track();
    if (track.IsRectEmpty())
        return;
    const std::int64_t room = track.Width() - kKnob, at = point.x - track.left - kKnob / 2;
    m_seek(static_cast<int>(std::clamp<std::int64_t>((at * (m_nCount - 1) + room / 2) / room, 0, m_nCount - 1)));
}

} // namespace editor
