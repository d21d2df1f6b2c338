// The rectangle a user draws over empty space, and what it makes of the selection it began with.
#pragma once

#include "Toolkit/controls/list/CellBlock.h"
#include "Toolkit/controls/list/RowSet.h"

namespace toolkit
{

class TOOLKIT_API RubberBand
{
public:
    // Rows touched are selected beside those of `base`; with `toggles` they are what they are not in `base`.
    RubberBand(ContentPoint origin, RowSet base, bool toggles);

    ContentRect Rect() const; // holds both corners; never empty
    const CellBlock& Touched() const { return m_touched; }
    bool Wants(int row, bool touched) const
    {
        return touched ? !m_bToggles || !m_base.Contains(row) : m_base.Contains(row);
    }

    void MoveTo(ContentPoint corner) { m_corner = corner; }
    // The blocks whose rows are touched now and were not, or were and are no longer.
    std::vector<CellBlock> Touch(const CellBlock& touched);
    void Truncate(int count) { m_base.Truncate(count); }

private:
    const ContentPoint m_origin;
    ContentPoint m_corner;
    RowSet m_base;
    const bool m_bToggles;
    CellBlock m_touched;
};

} // namespace toolkit
