// Points, sizes and rectangles, in pixels unless said otherwise.
//
// A rectangle holds the pixels from its left and top edge up to, not including, its right and bottom edge.
#pragma once

#include "Toolkit/base/Types.h"

#include <algorithm>

struct POINT
{
    LONG x, y;
};

struct SIZE
{
    LONG cx, cy;
};

struct RECT
{
    LONG left, top, right, bottom;
};

class CSize : public SIZE
{
public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int nWidth, int nHeight) : SIZE{nWidth, nHeight} {}
    constexpr CSize(const SIZE& size) : SIZE(size) {}
    friend constexpr bool operator==(const CSize& a, const CSize& b) { return a.cx == b.cx && a.cy == b.cy; }
};

class CPoint : public POINT
{
public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int nX, int nY) : POINT{nX, nY} {}
    constexpr CPoint(const POINT& point) : POINT(point) {}
    constexpr explicit CPoint(LPARAM packed) : POINT{GET_X_LPARAM(packed), GET_Y_LPARAM(packed)} {}

    constexpr void Offset(int dx, int dy)
    {
        x += dx;
        y += dy;
    }
    friend constexpr CPoint operator+(CPoint a, CPoint b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr CPoint operator-(CPoint a, CPoint b) { return {a.x - b.x, a.y - b.y}; }
    friend constexpr bool operator==(const CPoint& a, const CPoint& b) { return a.x == b.x && a.y == b.y; }
};

class CRect : public RECT
{
public:
    constexpr CRect() : RECT{0, 0, 0, 0} {}
    constexpr CRect(int nLeft, int nTop, int nRight, int nBottom) : RECT{nLeft, nTop, nRight, nBottom} {}
    constexpr CRect(const RECT& rect) : RECT(rect) {}
    constexpr CRect(CPoint topLeft, CSize size) : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy}
    {}

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint CenterPoint() const { return {left + Width() / 2, top + Height() / 2}; }
    constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
    constexpr bool PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    constexpr void OffsetRect(int dx, int dy)
    {
        left += dx;
        right += dx;
        top += dy;
        bottom += dy;
    }
    constexpr void InflateRect(int dx, int dy)
    {
        left -= dx;
        right += dx;
        top -= dy;
        bottom += dy;
    }
    constexpr void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }

    // The rectangle with its edges in order: left before right, top before bottom.
    constexpr CRect Normalized() const
    {
        return {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
    }

    // The common part; the empty rectangle at 0, 0 when there is none.
    friend constexpr CRect operator&(const CRect& a, const CRect& b)
    {
        const CRect common(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                           std::min(a.bottom, b.bottom));
        return common.IsRectEmpty() ? CRect() : common;
    }
    // The smallest rectangle that holds both; an empty one counts for nothing.
    friend constexpr CRect operator|(const CRect& a, const CRect& b)
    {
        if (a.IsRectEmpty())
            return b;
        if (b.IsRectEmpty())
            return a;
        return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                std::max(a.bottom, b.bottom)};
    }
    friend constexpr CRect operator+(CRect rect, CPoint by)
    {
        rect.OffsetRect(by.x, by.y);
        return rect;
    }
    friend constexpr CRect operator-(CRect rect, CPoint by)
    {
        rect.OffsetRect(-by.x, -by.y);
        return rect;
    }
    friend constexpr bool operator==(const CRect& a, const CRect& b)
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};
