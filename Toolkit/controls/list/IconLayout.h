// The icon view: as many columns as fit the client area's width share it evenly, so that no ragged strip is left at the
// right; a cell's picture stands in the middle of its top, the label below it.
#pragma once

#include "Toolkit/controls/list/ListLayout.h"

namespace toolkit
{

class TOOLKIT_API IconLayout : public ListLayout
{
public:
    void SetIcon(CSize size) { m_icon = size; } // 0 by 0: no pictures, the label takes their place
    CSize NaturalCell() const;                  // for pictures and text of the present size

    CRect IconRect(int row) const override;
    CRect LabelRoom(int row) const override;
    RowLabel PlaceLabel(int row, const std::string& text) const override;
    CRect FieldBox(int row, CSize wanted) const override;
    CellBlock BodiesTouching(const ContentRect& rect) const override;

protected:
    int ColumnsIn(int clientWidth) const override { return std::max(clientWidth / Cell().cx, 1); }
    int ColumnLeft(int column) const override;

private:
    int LabelTop() const; // within the cell

    CSize m_icon;
};

} // namespace toolkit
