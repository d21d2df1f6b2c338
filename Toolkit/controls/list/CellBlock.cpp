#include "Toolkit/controls/list/CellBlock.h"

namespace toolkit
{

std::vector<CRect> Difference(const CRect& rect, const CRect& without)
{
    const CRect common = rect & without;
    std::vector<CRect> pieces;
    const auto add = [&](const CRect& piece) {
        if (!piece.IsRectEmpty())
            pieces.push_back(piece);
    };
    if (common.IsRectEmpty()) {
        add(rect);
        return pieces;
    }
    add({rect.left, rect.top, rect.right, common.top});
    add({rect.left, common.top, common.left, common.bottom});
    add({common.right, common.top, rect.right, common.bottom});
    add({rect.left, common.bottom, rect.right, rect.bottom});
    return pieces;
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
