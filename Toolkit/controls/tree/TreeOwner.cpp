#include "Toolkit/controls/tree/TreeOwner.h"

#include <array>

namespace toolkit
{

namespace
{

constexpr std::size_t kLabelBuffer = 512; // lent to the owner, who may name a text of its own instead

UINT PartsToAsk(const TreeFace& item, UINT parts)
{
    if (!item.asksForText)
        parts &= ~TVIF_TEXT;
    if (item.image != I_IMAGECALLBACK)
        parts &= ~TVIF_IMAGE;
    if (item.selectedImage != I_IMAGECALLBACK)
        parts &= ~TVIF_SELECTEDIMAGE;
    if (item.childrenFlag != I_CHILDRENCALLBACK)
        parts &= ~TVIF_CHILDREN;
    return parts & TreeFace::kParts;
}

} // namespace

TVITEM TreeOwner::Describe(HTREEITEM hItem) const
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

LRESULT TreeOwner::TellSelection(UINT code, HTREEITEM hOld, HTREEITEM hNew, UINT cause) const
{
    NMTREEVIEW change{};
    change.action = cause;
    change.itemOld = Describe(hOld);
    change.itemNew = Describe(hNew);
    return m_window.Notify(code, change.hdr);
}

LRESULT TreeOwner::TellItem(UINT code, HTREEITEM hItem, UINT action) const
{
    NMTREEVIEW news{};
    news.action = action;
    (code == TVN_DELETEITEM ? news.itemOld : news.itemNew) = Describe(hItem);
    return m_window.Notify(code, news.hdr);
}

LRESULT TreeOwner::TellDrag(UINT code, HTREEITEM hItem, CPoint at) const
{
    NMTREEVIEW drag{};
    drag.itemNew = Describe(hItem);
    drag.ptDrag = at;
    return m_window.Notify(code, drag.hdr);
}

ItemFace TreeOwner::AskFace(HTREEITEM hItem, UINT parts) const
{
    ItemFace face;
    AskFace(hItem, parts, face);
    return face;
}

void TreeOwner::AskFace(HTREEITEM hItem, UINT parts, ItemFace& face) const
{
    const ItemIndex index = m_items.Find(hItem);
    if (index == kNoItem)
        return;
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
    if (asked != 0)
        AskOwner(hItem, asked, face);
}

void TreeOwner::AskOwner(HTREEITEM hItem, UINT parts, ItemFace& face) const
{
    std::array<char, kLabelBuffer> buffer;
    buffer[0] = '\0';
    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask = parts;
    info.item.pszText = buffer.data();
    info.item.cchTextMax = static_cast<int>(buffer.size());
    info.item.iImage = info.item.iSelectedImage = -1;
    m_window.Notify(TVN_GETDISPINFO, info.hdr);

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
        m_items.SetFace(index, m_items.FaceOf(index).With(info.item));
    }
}

NMTVDISPINFO TreeOwner::LabelInfo(HTREEITEM hItem, std::string& text) const
{
    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = text.data();
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    return info;
}

std::optional<std::string> TreeOwner::AskLabel(HTREEITEM hItem) const
{
    std::string text = AskText(hItem);
    NMTVDISPINFO info = LabelInfo(hItem, text);
    if (m_window.Notify(TVN_BEGINLABELEDIT, info.hdr) != 0)
        return std::nullopt;
    const bool named = info.item.pszText && info.item.pszText != LPSTR_TEXTCALLBACK;
    return named ? std::string(info.item.pszText) : text;
}

bool TreeOwner::TellLabel(HTREEITEM hItem, std::string& text, bool taken) const
{
    NMTVDISPINFO info = LabelInfo(hItem, text);
    if (!taken)
        info.item.pszText = nullptr;
    return m_window.Notify(TVN_ENDLABELEDIT, info.hdr) != 0 && taken;
}

void TreeOwner::TellText(HTREEITEM hItem, std::string& text) const
{
    NMTVDISPINFO info = LabelInfo(hItem, text);
    info.item.cchTextMax = 0;
    m_window.Notify(TVN_SETDISPINFO, info.hdr);
}

} // namespace toolkit
