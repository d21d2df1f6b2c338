#include "Toolkit/controls/list/RubberBand.h"

#include <algorithm>
#include <utility>

namespace toolkit
{

RubberBand::RubberBand(ContentPoint origin, RowSet base, bool toggles)
    : m_origin(origin), m_corner(origin), m_base(std::move(base)), m_bToggles(toggles)
{}

ContentRect RubberBand::Rect() const
{
    return {std::min(m_origin.x, m_corner.x), std::min(m_origin.y, m_corner.y), std::max(m_origin.x, m_corner.x) + 1,
            std::max(m_origin.y, m_corner.y) + 1};
}

std::vector<CellBlock> RubberBand::Touch(const CellBlock& touched)
{
    const CellBlock former = std::exchange(m_touched, touched);
    std::vector<CellBlock> changed = Difference(former, touched);
    const std::vector<CellBlock> added = Difference(touched, former);
    changed.insert(changed.end(), added.begin(), added.end());
    return changed;
}

} // namespace toolkit
