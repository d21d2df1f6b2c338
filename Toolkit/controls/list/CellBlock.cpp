#include "Toolkit/controls/list/CellBlock.h"

#include "Toolkit/graphics/Region.h"

namespace toolkit
{

std::vector<CRect> Difference(const CRect& rect, const CRect& without)
{
    Region rest(rect);
    rest.Subtract(without);
    return rest.Rects();
}

std::vector<CellBlock> Difference(const CellBlock& block, const CellBlock& without)
{
    const auto asRect = [](const CellBlock& b) { return CRect(b.firstColumn, b.firstLine, b.endColumn, b.endLine); };
    std::vector<CellBlock> pieces;
    for (const CRect& piece : Difference(asRect(block), asRect(without)))
        pieces.push_back({piece.top, piece.bottom, piece.left, piece.right});
    return pieces;
}

} // namespace toolkit
