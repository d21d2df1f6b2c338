// A scroll bar as plain geometry: where its parts lie, and which position a place on it stands for.
//
// All pixels are in the coordinates of the rectangle it is made with. Positions are exact over the whole 32-bit
// range: the thumb's first pixel is the first position, its last one the last.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

namespace toolkit
{

enum class ScrollPart
{
    None,
    Before,
    Thumb,
    After
};

class TOOLKIT_API ScrollBar
{
public:
    ScrollBar(const CRect& box, int nBar, const SCROLLINFO& info); // SB_HORZ or SB_VERT

    CRect GetThumb() const { return GetThumbAt(GetThumbOffset()); } // at the info's nPos
    CRect GetThumbAt(int nOffset) const;                            // so many pixels from the first place
    int GetThumbOffset() const { return OffsetOf(m_info.nPos); }
    int GetFreeLength() const { return m_nLength - m_nThumb; } // the largest offset
    ScrollPart HitTest(CPoint at) const;

    int Along(CPoint at) const { return m_bVertical ? at.y : at.x; }
    int PositionAt(int nOffset) const; // of the thumb, clipped to its free length

    // Is there anything to scroll? The last position, and the info with page and position kept in range.
    static bool IsNeeded(const SCROLLINFO& info);
    static int LastPosition(const SCROLLINFO& info);
    static SCROLLINFO Normalized(SCROLLINFO info);

private:
    int OffsetOf(int nPos) const;

    const CRect m_box;
    const bool m_bVertical;
    const SCROLLINFO m_info;
    int m_nStart, m_nLength; // of the track
    int m_nThumb;            // length
};

} // namespace toolkit
