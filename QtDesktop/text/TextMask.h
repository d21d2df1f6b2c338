// How much of each pixel letters and labels cover.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <vector>

namespace qtdesktop
{

// Row by row, 255 for all of a pixel. Behind each row lie zeros, so that eight bytes can be read from wherever it
// has one.
class TextMask
{
public:
    TextMask() = default;
    explicit TextMask(const CRect& place) { Reset(place); }
    void Reset(const CRect& place); // from where the text is put; covers nothing

    const CRect& Place() const { return m_place; }
    BYTE* Row(int y) { return m_coverage.data() + static_cast<std::size_t>(y) * m_stride; } // from the mask's top
    const BYTE* Row(int y) const { return const_cast<TextMask*>(this)->Row(y); }

    void Blend(toolkit::Surface& target, const CRect& clip, CPoint at, toolkit::Pixel color) const;

private:
    CRect m_place;
    std::size_t m_stride = 0;
    std::vector<BYTE> m_coverage;
};

// Letters that stand side by side. Where two of them cover a pixel it is painted twice, as if they had been drawn one
// after the other.
class LabelMask
{
public:
    void Reset(const CRect& place);
    void Add(const TextMask& letter, CPoint at); // whose place is inside this one's
    void Blend(toolkit::Surface& target, const CRect& clip, CPoint at, toolkit::Pixel color) const;

private:
    struct Spot
    {
        CPoint at;
        BYTE coverage;
    };

    void AddEight(BYTE* to, const BYTE* from, CPoint at);

    TextMask m_mask;
    std::vector<Spot> m_twice; // what covers a pixel after another letter, in the letters' order
};

} // namespace qtdesktop
