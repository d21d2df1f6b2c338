// How the tree control asks and tells its owner.
#include "Toolkit/controls/tree/TreeControl.h"

#include <array>

namespace toolkit
{

namespace
{
constexpr UINT kPictures = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
constexpr std::size_t kLabelBuffer = 512; // lent to the owner, who may name a text of its own instead
} // namespace

TVITEM TreeControl::Describe(HTREEITEM hItem) const
{
    TVITEM described{};
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return described;
    described.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE;
    described.hItem = hItem;
    described.state = m_items[item].state;
    described.stateMask = ~0u;
    described.lParam = m_items[item].lParam;
    return described;
}

bool TreeControl::TellSelection(UINT code, HTREEITEM hOld, HTREEITEM hNew, UINT cause, LRESULT* pAnswer) const
{
    NMTREEVIEW change{};
    change.action = cause;
    change.itemOld = Describe(hOld);
    change.itemNew = Describe(hNew);
    return Tell(code, change.hdr, pAnswer);
}

bool TreeControl::TellItem(UINT code, HTREEITEM hItem, UINT action, LRESULT* pAnswer) const
{
    NMTREEVIEW news{};
    news.action = action;
    (code == TVN_DELETEITEM ? news.itemOld : news.itemNew) = Describe(hItem);
    return Tell(code, news.hdr, pAnswer);
}

UINT TreeControl::PartsToAsk(const TreeFace& item, UINT parts)
{
    if (!item.asksForText)
        parts &= ~TVIF_TEXT;
    if (item.image != I_IMAGECALLBACK)
        parts &= ~TVIF_IMAGE;
    if (item.selectedImage != I_IMAGECALLBACK)
        parts &= ~TVIF_SELECTEDIMAGE;
    if (item.childrenFlag != I_CHILDRENCALLBACK)
        parts &= ~TVIF_CHILDREN;
    return parts & (TVIF_TEXT | kPictures | TVIF_CHILDREN);
}

bool TreeControl::AskFace(HTREEITEM hItem, UINT parts, Face& face)
{
    const ItemIndex index = m_items.Find(hItem);
    if (index == kNoItem)
        return true;
    const TreeFace& item = m_items.FaceOf(index);
    const UINT asked = PartsToAsk(item, parts);
    const UINT known = parts & ~asked;
    if (known & TVIF_TEXT)
        face.text = item.text.View();
    if (known & TVIF_IMAGE)
        face.image = item.image;
    if (known & TVIF_SELECTEDIMAGE)
        face.selectedImage = item.selectedImage;
    if (known & TVIF_CHILDREN)
        face.hasChildren =
            item.childrenFlag == TreeFace::kChildrenCounted ? m_items.ChildCount(index) > 0 : item.childrenFlag != 0;
    return asked == 0 || AskOwner(hItem, asked, face);
}

bool TreeControl::AskOwner(HTREEITEM hItem, UINT parts, Face& face)
{
    std::array<char, kLabelBuffer> buffer;
    buffer[0] = '\0';
    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask = parts;
    info.item.pszText = buffer.data();
    info.item.cchTextMax = static_cast<int>(buffer.size());
    info.item.iImage = info.item.iSelectedImage = -1;
    if (!Tell(TVN_GETDISPINFO, info.hdr))
        return false;

    if ((parts & TVIF_TEXT) && info.item.pszText && info.item.pszText != LPSTR_TEXTCALLBACK)
        face.text = info.item.pszText;
    if (parts & TVIF_IMAGE)
        face.image = info.item.iImage;
    if (parts & TVIF_SELECTEDIMAGE)
        face.selectedImage = info.item.iSelectedImage;
    if (parts & TVIF_CHILDREN)
        face.hasChildren = info.item.cChildren > 0;

    const ItemIndex index = m_items.Find(hItem);
    if ((info.item.mask & TVIF_DI_SETITEM) && index != kNoItem) {
        info.item.mask = parts;
        Assign(index, info.item);
    }
    return true;
}

} // namespace toolkit
