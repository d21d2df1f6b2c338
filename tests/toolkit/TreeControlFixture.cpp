#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{
constexpr int kRowHeight = 20;
} // namespace

BEGIN_MESSAGE_MAP(LedgerTree, CTreeCtrl)
    ON_NOTIFY_REFLECT(TVN_SELCHANGING, OnSelection)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, OnSelection)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, OnBranch)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDED, OnBranch)
    ON_NOTIFY_REFLECT(TVN_DELETEITEM, OnDelete)
    ON_NOTIFY_REFLECT(TVN_BEGINDRAG, OnDrag)
    ON_NOTIFY_REFLECT(TVN_BEGINRDRAG, OnDrag)
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDIT, OnBeginEdit)
    ON_NOTIFY_REFLECT(TVN_ENDLABELEDIT, OnEndEdit)
    ON_NOTIFY_REFLECT(TVN_SETDISPINFO, OnSetDispInfo)
    ON_NOTIFY_REFLECT(TVN_GETDISPINFO, OnDispInfo)
    ON_NOTIFY_REFLECT(NM_CLICK, OnEvent)
    ON_NOTIFY_REFLECT(NM_RCLICK, OnEvent)
    ON_NOTIFY_REFLECT(NM_DBLCLK, OnEvent)
    ON_NOTIFY_REFLECT(NM_SETFOCUS, OnFocus)
    ON_NOTIFY_REFLECT(NM_KILLFOCUS, OnFocus)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

HTREEITEM LedgerTree::Add(const std::string& name, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    m_names.push_back(name);
    TVINSERTSTRUCT insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = LPSTR_TEXTCALLBACK;
    insert.item.iImage = insert.item.iSelectedImage = I_IMAGECALLBACK;
    insert.item.cChildren = I_CHILDRENCALLBACK;
    insert.item.lParam = reinterpret_cast<LPARAM>(&m_names.back());
    return InsertItem(&insert);
}

std::string& LedgerTree::NameOf(HTREEITEM hItem) const
{
    static std::string none;
    none = "-";
    return hItem ? *reinterpret_cast<std::string*>(GetItemData(hItem)) : none;
}

HTREEITEM LedgerTree::Find(const std::string& name) const
{
    HTREEITEM hItem = GetRootItem();
    while (hItem && NameOf(hItem) != name) {
        HTREEITEM hNext = GetChildItem(hItem);
        for (; !hNext && hItem; hItem = GetParentItem(hItem))
            hNext = GetNextSiblingItem(hItem);
        hItem = hNext;
    }
    return hItem;
}

void LedgerTree::WriteItem(const char* verb, const TVITEM& item, LRESULT* pResult)
{
    Write(std::string(verb) + " " + *reinterpret_cast<const std::string*>(item.lParam), pResult);
}

void LedgerTree::OnSelection(NMTREEVIEW* pChange, LRESULT* pResult)
{
    const char* const causes[] = {"", " by mouse", " by key"};
    const std::string verb = pChange->hdr.code == TVN_SELCHANGING ? "selecting " : "selected ";
    Write(verb + NameOf(pChange->itemOld.hItem) + " -> " + NameOf(pChange->itemNew.hItem) + causes[pChange->action],
          pResult);
}

void LedgerTree::OnBranch(NMTREEVIEW* pNews, LRESULT* pResult)
{
    const bool asks = pNews->hdr.code == TVN_ITEMEXPANDING;
    if (pNews->action == TVE_EXPAND)
        WriteItem(asks ? "expanding" : "expanded", pNews->itemNew, pResult);
    else
        WriteItem(asks ? "collapsing" : "collapsed", pNews->itemNew, pResult);
}

void LedgerTree::OnDelete(NMTREEVIEW* pNews, LRESULT*)
{
    WriteItem("deleted", pNews->itemOld);
}

void LedgerTree::OnDrag(NMTREEVIEW* pDrag, LRESULT*)
{
    WriteItem(pDrag->hdr.code == TVN_BEGINDRAG ? "drag" : "right drag", pDrag->itemNew);
}

void LedgerTree::OnBeginEdit(NMTVDISPINFO* pInfo, LRESULT* pResult)
{
    WriteBeginEdit(NameOf(pInfo->item.hItem), pInfo->item.pszText, pResult);
}

void LedgerTree::OnEndEdit(NMTVDISPINFO* pInfo, LRESULT* pResult)
{
    WriteEndEdit(NameOf(pInfo->item.hItem), pInfo->item.pszText, pResult);
}

void LedgerTree::OnSetDispInfo(NMTVDISPINFO* pInfo, LRESULT*)
{
    Write("set '" + std::string(pInfo->item.pszText) + "'");
    NameOf(pInfo->item.hItem) = pInfo->item.pszText;
}

void LedgerTree::OnDispInfo(NMTVDISPINFO* pInfo, LRESULT*)
{
    static std::string shown; // the owner lends a text of its own
    TVITEM& item = pInfo->item;
    if (item.mask & TVIF_TEXT) {
        ++labelRequests;
        shown = *reinterpret_cast<const std::string*>(item.lParam);
        item.pszText = shown.data();
    }
    item.iImage = 0;
    item.iSelectedImage = 1;
    item.cChildren = GetChildItem(item.hItem) != nullptr;
    item.mask |= keeps;
    asked(shown);
}

void LedgerTree::OnEvent(NMHDR* pHeader, LRESULT* pResult)
{
    const UINT code = pHeader->code;
    Write(code == NM_CLICK ? "click" : code == NM_RCLICK ? "right click" : "double click", pResult);
}

void TreeControlTest::SetUp()
{
    MakeTop(16, {RGB(255, 0, 0), RGB(0, 255, 0)});
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_SHOWSELALWAYS | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT,
                            CRect(0, 0, 300, 10 * kRowHeight), &top, kControlID));
    tree.SetImageList(&images, TVSIL_NORMAL);
}

void TreeControlTest::TearDown()
{
    desktop.Hold({});
    images.DeleteImageList();
    top.DestroyWindow();
}

void TreeControlTest::Fill(const std::string& text)
{
    tree.DeleteAllItems();
    std::vector<HTREEITEM> parents{TVI_ROOT};
    std::vector<std::pair<HTREEITEM, char>> brackets;
    HTREEITEM hLast = nullptr;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '[' || c == '(') {
            parents.push_back(hLast);
        } else if (c == ']' || c == ')') {
            if (c == ']')
                tree.Expand(parents.back(), TVE_EXPAND);
            parents.pop_back();
        } else if (c != ' ') {
            const std::size_t end = std::min(text.find_first_of(" []()", i), text.size());
            hLast = tree.Add(text.substr(i, end - i), parents.back());
            i = end - 1;
        }
    }
    desktop.Run();
    TakeLedger();
}

void TreeControlTest::Describe(HTREEITEM hItem, std::string& text) const
{
    for (; hItem; hItem = tree.GetNextSiblingItem(hItem)) {
        if (!text.empty() && text.back() != '[' && text.back() != '(')
            text += ' ';
        text += (tree.GetItemState(hItem, TVIS_SELECTED) ? "*" : "") + tree.NameOf(hItem);
        const HTREEITEM hChild = tree.GetChildItem(hItem);
        if (!hChild)
            continue;
        const bool expanded = tree.GetItemState(hItem, TVIS_EXPANDED) != 0;
        text += expanded ? " [" : " (";
        Describe(hChild, text);
        text += expanded ? ']' : ')';
    }
}

std::string TreeControlTest::State() const
{
    std::string text;
    Describe(tree.GetRootItem(), text);
    return text;
}

CRect TreeControlTest::LabelOf(const std::string& name) const
{
    CRect rect;
    EXPECT_TRUE(tree.GetItemRect(tree.Find(name), &rect, TRUE)) << name;
    return rect;
}

CPoint TreeControlTest::IconOf(const std::string& name) const
{
    const CRect label = LabelOf(name);
    return {label.left - 10, label.CenterPoint().y};
}

CPoint TreeControlTest::ButtonOf(const std::string& name) const
{
    return IconOf(name) - CPoint(20, 0);
}

std::string TreeControlTest::InRow(int row) const
{
    const HTREEITEM hItem = tree.HitTest(CPoint(2, row * kRowHeight + 1));
    return tree.NameOf(hItem);
}
