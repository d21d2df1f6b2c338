// What the tree answers when its control draws or compares labels.
#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomIcon.h"
#include "Views/host/inside/ReadName.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/inside/TreeIconSlots.h"
#include "Views/tree/inside/TreeLabel.h"

namespace
{

constexpr char kUnnamed[] = "Unnamed";

} // namespace

// Nothing is left for the control to keep: it asks again at every paint.
void CObjectsTree::OnObjectsGetDispInfo(TVDISPINFO* pInfo, LRESULT* pResult)
{
    *pResult = 0;
    TVITEM& item = pInfo->item;
    const auto* pRecord = reinterpret_cast<const TREEITEMDATA*>(item.lParam);
    const auto pAtom = CStubRef<IAtom>::Share(pRecord ? pRecord->pAtom.Get() : nullptr);
    if (!pAtom)
        return;

    if (item.mask & TVIF_IMAGE)
        item.iImage = item.iSelectedImage = ImageOf(pAtom.Get(), item);
    // Before the label: to look below an item may put items in order, whose labels are asked for in the same buffer.
    const bool bHasChildren = (item.mask & TVIF_CHILDREN) && GetChildItem(item.hItem);
    if ((item.mask & TVIF_TEXT) && !AnswerLabel(pAtom.Get(), item))
        return;
    if (item.mask & TVIF_CHILDREN)
        item.cChildren = bHasChildren;
    item.mask &= ~TVIF_DI_SETITEM;
    OnGetDispInfo(pInfo);
}

int CObjectsTree::ImageOf(IAtom* pAtom, const TVITEM& item)
{
    const auto pIcon = CStubRef<IAtomIcon>::From(pAtom);
    const int nIcon = pIcon ? IconImage(pIcon.Get(), item.hItem) : -1;
    if (nIcon != -1)
        return nIcon;
    const bool bOpen = (item.state & TVIS_EXPANDED) && GetChildItem(item.hItem);
    return bOpen ? m_nOpenImage : m_nDefaultImage;
}

// -1 when the icon could not be added, be it for lack of memory, now or when it was tried first.
int CObjectsTree::IconImage(IAtomIcon* pIcon, HTREEITEM hItem)
{
    if (const views::ICONSLOT* pSlot = m_pIconSlots->Find(hItem))
        return pSlot->nImage;
    const int nFree = m_pIconSlots->TakeOver([this](HTREEITEM hShown) {
        CRect rect;
        return GetItemRect(hShown, &rect, FALSE) != FALSE;
    });
    int nImage = -1;
    try {
        nImage = pIcon->AddToImageList(m_images.GetSafeHandle(), nFree);
    } catch (const CMemoryException&) {
        // As for an icon that fails.
    }
    try {
        m_pIconSlots->Lend(hItem, nImage);
    } catch (CMemoryException& e) {
        e.ReportError(); // the image is not used again
    }
    return nImage;
}

// An item that is collapsed hides those below it.
BOOL CObjectsTree::OnItemExpanded(NMTREEVIEW* pChange, LRESULT* pResult)
{
    if (pChange->action == TVE_COLLAPSE)
        m_pIconSlots->ItemsHidden();
    *pResult = 0;
    return FALSE; // the parent window hears of it, too
}

// False when the name could not be read: the user has been told, and nothing more is answered. Without memory for the
// label there is none, and the request goes on.
bool CObjectsTree::AnswerLabel(IAtom* pAtom, TVITEM& item)
try {
    const bool bModified = pAtom->IsModified() != FALSE;
    return views::ReadShownName(*this, pAtom, [&](auto* pSource, auto pfnGet) {
        CString strLabel = std::move(m_strLabel); // lent: should the atom have the tree draw now, that takes another
        const LPSTR pszLabel = views::BuildLabel(pSource, pfnGet, bModified, strLabel);
        m_strLabel = std::move(strLabel);
        item.pszText = pszLabel ? pszLabel : const_cast<LPSTR>(kUnnamed); // read, never written
        return pszLabel != nullptr;
    });
} catch (CMemoryException& e) {
    e.ReportError();
    return true;
}

BOOL CObjectsTree::SetBoldRoot(HTREEITEM hItem, BOOL bBold)
{
    if (!hItem)
        return FALSE;
    for (; hItem; hItem = GetParentItem(hItem))
        SetItemState(hItem, bBold ? TVIS_BOLD : 0, TVIS_BOLD);
    return TRUE;
}
