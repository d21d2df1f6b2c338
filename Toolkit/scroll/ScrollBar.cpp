#include "Toolkit/scroll/ScrollBar.h"

#include <algorithm>

namespace
{
constexpr int kShortestThumb = 28; // long enough to be caught

using Wide = std::int64_t;

Wide RangeOf(const SCROLLINFO& info)
{
    return Wide{info.nMax} - info.nMin + 1;
}
} // namespace

toolkit::ScrollBar::ScrollBar(const CRect& box, int nBar, const SCROLLINFO& info)
    : m_box(box),
      m_bVertical(nBar == SB_VERT),
      m_info(Normalized(info)),
      m_nStart(m_bVertical ? box.top : box.left),
      m_nLength(m_bVertical ? box.Height() : box.Width())
{
    const Wide proportional = Wide{m_nLength} * m_info.nPage / RangeOf(m_info);
    m_nThumb = std::clamp(static_cast<int>(proportional), std::min(kShortestThumb, m_nLength), m_nLength);
}

CRect toolkit::ScrollBar::GetThumbAt(int nOffset) const
{
    const int nFirst = m_nStart + nOffset;
    return m_bVertical ? CRect(m_box.left, nFirst, m_box.right, nFirst + m_nThumb)
                       : CRect(nFirst, m_box.top, nFirst + m_nThumb, m_box.bottom);
}

toolkit::ScrollPart toolkit::ScrollBar::HitTest(CPoint at) const
{
    if (!m_box.PtInRect(at))
        return ScrollPart::None;
    const CRect thumb = GetThumb();
    if (thumb.PtInRect(at))
        return ScrollPart::Thumb;
    return Along(at) < Along(thumb.TopLeft()) ? ScrollPart::Before : ScrollPart::After;
}

int toolkit::ScrollBar::PositionAt(int nOffset) const
{
    const Wide nFree = GetFreeLength();
    if (nFree <= 0)
        return m_info.nMin;
    const Wide nSpan = Wide{LastPosition(m_info)} - m_info.nMin;
    const Wide nAt = std::clamp<Wide>(nOffset, 0, nFree);
    return static_cast<int>(m_info.nMin + (nAt * nSpan + nFree / 2) / nFree);
}

int toolkit::ScrollBar::OffsetOf(int nPos) const
{
    const Wide nSpan = Wide{LastPosition(m_info)} - m_info.nMin;
    if (nSpan <= 0)
        return 0;
    return static_cast<int>(((Wide{nPos} - m_info.nMin) * GetFreeLength() + nSpan / 2) / nSpan);
}

bool toolkit::ScrollBar::IsNeeded(const SCROLLINFO& info)
{
    return RangeOf(info) > std::max(info.nPage, 1);
}

int toolkit::ScrollBar::LastPosition(const SCROLLINFO& info)
{
    return static_cast<int>(std::max<Wide>(info.nMin, Wide{info.nMax} - std::max(info.nPage - 1, 0)));
}

SCROLLINFO toolkit::ScrollBar::Normalized(SCROLLINFO info)
{
    info.nMax = std::max(info.nMin, info.nMax);
    info.nPage = static_cast<int>(std::clamp<Wide>(info.nPage, 0, RangeOf(info)));
    info.nPos = std::clamp(info.nPos, info.nMin, LastPosition(info));
    return info;
}
