// The animated thumbnails that the mouse has passed over.
//
// Nothing moves them on: the timer only ticks, and the table holds them until the view is emptied.
#include "Views/list/ThumbList.h"

namespace
{

constexpr UINT_PTR kAnimationTimer = 1234;
constexpr UINT kAnimationPeriod = 80; // milliseconds

} // namespace

void CThumbList::OnMouseMove(UINT, CPoint point)
{
    const int nItem = HitTest(point);
    if (nItem < 0 || nItem >= GetItemCount() || m_animations.contains(nItem))
        return;
    const auto pAtom = CStubRef<IAtom>::Share(AtomIn(nItem));
    auto pThumb = CStubRef<IAtomThumbnail>::From(pAtom.Get());
    if (!pThumb || pThumb->GetFrameCount() <= 1 || AtomIn(nItem) != pAtom.Get())
        return;
    m_animations.emplace(nItem, ANIMDATA{0, std::move(pThumb)});
    StartTimer();
}

IAtom* CThumbList::AtomIn(int nItem) const
{
    const auto* const pPair = reinterpret_cast<const OBJPAIR*>(GetItemData(nItem));
    return pPair ? pPair->pAtom : nullptr;
}

void CThumbList::OnTimer(UINT_PTR) {}

void CThumbList::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CObjectsList::OnShowWindow(bShow, nStatus);
    if (bShow)
        StartTimer();
    else
        KillTimer(kAnimationTimer);
}

void CThumbList::OnDestroy()
{
    KillTimer(kAnimationTimer);
    CObjectsList::OnDestroy();
}

void CThumbList::StartTimer()
{
    SetTimer(kAnimationTimer, kAnimationPeriod);
}

// Releasing a thumbnail may re-enter: the table is empty by then.
void CThumbList::ClearAnimation()
{
    std::exchange(m_animations, {}).clear();
}
