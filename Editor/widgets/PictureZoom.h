// How much of a picture is seen, and how large.
#pragma once

#include "Toolkit/base/Geometry.h"

namespace editor
{

// Knows no window. Either the whole picture fits the view, or it is so many times as large as its own pixels and a
// point of it stands in the view's middle; the same part of the next picture then.
class PictureZoom
{
public:
    static constexpr double kMost = 32;

    bool IsFit() const { return m_dZoom == 0; }
    double Get() const { return m_dZoom; } // 0: it fits
    void Fit() { *this = PictureZoom(); }

    // The picture has `full` pixels and is shown `dFit` times as large where it fits. What is under that point of the
    // view stays there. Each step goes half the way to the double, and past none at which pixels are as on the screen.
    void Step(int nSteps, CPoint at, const CRect& view, CSize full, double dFit);
    void SetTo(double dZoom, CPoint at, const CRect& view, CSize full, double dFit);
    void Pan(CSize by, const CRect& view, CSize full);

    CRect Place(const CRect& view, CSize full) const; // of the whole picture, where it does not fit

private:
    void TakeMiddleOf(const CRect& view, const CRect& place);

    double m_dZoom = 0;
    double m_dX = 0.5, m_dY = 0.5; // what part of the picture is left of, and above, the view's middle
};

} // namespace editor
