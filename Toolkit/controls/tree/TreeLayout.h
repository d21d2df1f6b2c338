// Where the tree control's rows and their parts lie, as arithmetic. Knows neither items nor labels.
//
// Rows are of one height and scroll as wholes: the first row in sight is always seen from its top. Sideways the
// content scrolls by pixels. All rectangles are in client coordinates.
#pragma once

#include "Toolkit/base/Geometry.h"

namespace toolkit
{

struct RowSpan
{
    int first, end; // without end
};

class TOOLKIT_API TreeLayout
{
public:
    static constexpr int kIndent = 20;
    static constexpr int kLabelPadding = 4; // left and right of a label's text, inside its box
    static constexpr int kIconGap = 2;      // left and right of a picture

    // Each keeps what is scrolled in range.
    void SetClient(CSize size);
    void SetRows(int rows);
    void SetMeasures(int lineHeight, CSize icon);             // 0 by 0: no pictures, no room for them
    void SetButtonsAtRoot(bool on) { m_bButtonsAtRoot = on; } // or at least room for their lines
    void SetWidth(int width);                                 // of the content
    void ScrollToRow(int row) { m_nTop = std::clamp(row, 0, MaxTopRow()); }
    void ScrollToX(int x) { m_nX = std::clamp(x, 0, MaxX()); }

    CSize Client() const { return m_client; }
    int Rows() const { return m_nRows; }
    int RowHeight() const { return m_nRowHeight; }
    int Width() const { return m_nWidth; }
    int TopRow() const { return m_nTop; }
    int MaxTopRow() const { return std::max(m_nRows - FullRows(), 0); }
    int X() const { return m_nX; } // the content's x at the client area's left edge
    int MaxX() const { return std::max<int>(m_nWidth - m_client.cx, 0); }
    int FullRows() const { return FullRows(m_client.cy); } // at least 1
    int FullRows(int height) const { return std::max(height / m_nRowHeight, 1); }

    // A row counted from the first one; the level counts from 0.
    CRect RowRect(int row) const;               // as wide as the client area
    CRect ButtonSlot(int row, int level) const; // the square in which button and lines meet; left of it: the indent
    CRect IconSlot(int row, int level) const;   // empty without pictures
    CPoint IconAt(int row, int level) const;    // the picture's top left corner
    CRect LabelBox(int row, int level, int textWidth) const;
    int LeftOf(int level) const { return SlotLeft(level); } // of button and lines, in the content
    int RightOf(int level, int textWidth) const;            // of the label, in the content

    int RowAt(int y) const; // -1: none
    RowSpan RowsTouching(const CRect& client) const;

    // What to scroll to so that a row, or what lies between two of the content's x, comes into sight by the
    // shortest way. The left end goes before the right one.
    int TopRowToShow(int row) const { return std::clamp(m_nTop, row - FullRows() + 1, row); }
    int XToShow(int left, int right) const { return std::min<int>(std::max<int>(m_nX, right - m_client.cx), left); }

private:
    int SlotLeft(int level) const; // in the content
    int LabelLeft(int level) const;

    CSize m_client, m_icon;
    int m_nRows = 0, m_nRowHeight = 20, m_nWidth = 0;
    int m_nTop = 0, m_nX = 0;
    bool m_bButtonsAtRoot = false;
};

} // namespace toolkit
