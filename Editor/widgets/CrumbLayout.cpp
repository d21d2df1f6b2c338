#include "Editor/widgets/CrumbLayout.h"

namespace editor
{
namespace
{

// How many of the parts between the first and the last one are left out.
int CountLeftOut(const std::vector<int>& parts, int gap, int dots, int room)
{
    int width = -gap;
    for (const int part : parts)
        width += part + gap;
    const int between = static_cast<int>(parts.size()) - 2;
    int nLeftOut = 0;
    for (; width > room && nLeftOut < between; ++nLeftOut)
        width += (nLeftOut == 0 ? dots : -gap) - parts[static_cast<std::size_t>(nLeftOut) + 1];
    return nLeftOut;
}

} // namespace

CrumbLayout::CrumbLayout(const std::vector<int>& parts, int gap, int dots, const CRect& room)
{
    const int nParts = static_cast<int>(parts.size());
    const int nLeftOut = CountLeftOut(parts, gap, dots, room.Width());
    int x = room.left;
    const auto place = [&](int nPart, int width) {
        m_crumbs.push_back({nPart, {x, room.top, std::min(x + width, static_cast<int>(room.right)), room.bottom}});
        x += width + gap;
    };
    for (int i = 0; i < nParts; ++i) {
        if (i == 1 && nLeftOut > 0)
            place(kDots, dots);
        if (i == 0 || i > nLeftOut)
            place(i, parts[static_cast<std::size_t>(i)]);
    }
}

int CrumbLayout::PartAt(CPoint point) const
{
    for (const Crumb& crumb : m_crumbs)
        if (crumb.rect.PtInRect(point))
            return crumb.nPart;
    return kDots;
}

} // namespace editor
