// A device context: where drawing goes, through which clip, with which colours. Internal to the graphics layer.
#pragma once

#include "Toolkit/graphics/Region.h"
#include "Toolkit/graphics/Surface.h"
#include "Toolkit/graphics/TextEngine.h"

#include <algorithm>
#include <vector>

namespace toolkit
{

struct DrawState
{
    Region clip; // in the surface's coordinates, as the origin
    CPoint origin;
    COLORREF textColor = RGB(0, 0, 0);
    FontStyle fontStyle = FontStyle::Regular;
};

class DeviceContext
{
public:
    DeviceContext(Surface& target, CPoint origin, Region clip);

    Surface& Target() const { return *m_pTarget; }
    CPoint Origin() const { return m_state.origin; }
    HBITMAP SelectedBitmap() const { return m_hSelected; } // NULL: draws into a surface that is no bitmap
    HBITMAP OwnBitmap() const { return m_hOwn; }
    DrawState& State() { return m_state; }

    // Draws into the bitmap from now on, all of it. Saved states stay; they come back within its bounds.
    void Select(HBITMAP hBitmap, Surface& target);
    void SetOwnBitmap(HBITMAP hBitmap) { m_hOwn = m_hSelected = hBitmap; } // it is the surface drawn into

    int Save();
    bool Restore(int depth); // as RestoreDC

    PixelScale Scale() const { return m_pTarget->Scale(); }

    // Calls draw with each part of the rectangle (relative to the origin) that may be drawn on, in pixels of the
    // surface. Nothing outside the surface comes, whatever became of it since the clip was set.
    template <class Draw>
    void VisitVisible(const CRect& rect, Draw draw) const
    {
        for (const CRect& clip : m_state.clip.Rects()) {
            const CRect part = VisiblePart(clip, rect);
            if (!part.IsRectEmpty())
                Visit(Scale().ToPixels(part + m_state.origin), draw);
        }
    }
    // The same with a rectangle in pixels of the surface.
    template <class Draw>
    void VisitVisiblePixels(const CRect& pixels, Draw draw) const
    {
        for (const CRect& clip : m_state.clip.Rects())
            Visit(Scale().ToPixels(clip) & pixels, draw);
    }
    bool IsVisible(const CRect& rect) const // would VisitVisible call draw?
    {
        const std::vector<CRect>& clips = m_state.clip.Rects();
        return std::any_of(clips.begin(), clips.end(),
                           [&](const CRect& clip) { return !VisiblePart(clip, rect).IsRectEmpty(); });
    }
    bool IsDrawnOn() const { return m_bDrawnOn; } // has anything been drawn through this device context?

private:
    CRect VisiblePart(const CRect& clip, const CRect& rect) const
    {
        return ((clip & CRect({}, m_pTarget->Size())) - m_state.origin) & rect;
    }
    template <class Draw>
    void Visit(const CRect& pixels, Draw draw) const
    {
        const CRect part = pixels & m_pTarget->Bounds();
        if (part.IsRectEmpty())
            return;
        m_bDrawnOn = true;
        draw(part);
    }

    Surface* m_pTarget;
    mutable bool m_bDrawnOn = false;
    HBITMAP m_hSelected = nullptr;
    HBITMAP m_hOwn = nullptr;
    DrawState m_state;
    std::vector<DrawState> m_saved;
};

} // namespace toolkit
