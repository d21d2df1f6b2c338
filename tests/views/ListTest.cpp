#include "tests/views/ListTest.h"

std::string ProbeList::State() const
{
    std::string strState;
    for (int i = 0; i < GetItemCount(); ++i) {
        const OBJPAIR* pPair = Pair(i);
        const std::string strRow = (GetItemState(i, LVIS_SELECTED) ? "*" : "") + NameOf(pPair ? pPair->pAtom : nullptr);
        strState += (i ? " " : "") + (GetItemState(i, LVIS_FOCUSED) ? "(" + strRow + ")" : strRow);
    }
    return "[" + strState + "]";
}

void ProbeList::Write(const char* pszHook, int nItem, IAtom* pAtom, IAtomContainer* pContainer, const CACHEDATA& data)
{
    m_hooks.push_back(pszHook + (" " + std::to_string(nItem) + " " + NameOf(pAtom) + " in " + NameOf(pContainer)) +
                      " \"" + data.strText.GetString() + "\"");
}

void ProbeList::OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData)
{
    Write("uncache", nItem, pAtom, pContainer, *pData);
    CIconList::OnUncacheItem(nItem, pAtom, pContainer, pData);
}

void ProbeList::OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData)
{
    Write("cache", nItem, pAtom, pContainer, *pData);
    CIconList::OnCacheItem(nItem, pAtom, pContainer, pData);
}

void ProbeList::OnClearContext()
{
    m_hooks.push_back("clear");
    CIconList::OnClearContext();
}

CPoint PointOf(const CListCtrl& list, int nRow)
{
    CRect rect;
    EXPECT_TRUE(list.GetItemRect(nRow, &rect, LVIR_ICON));
    return rect.CenterPoint();
}

ListTest::ListTest()
{
    resources.AddString(1008, "Icons");
    resources.AddIcon(1008, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1006, toolkit::Surface(CSize(48, 48), 0xFFFFFF00));
}

ProbeList& ListTest::MakeList(bool bPassive)
{
    m_lists.push_back(std::make_unique<ProbeList>(hooks, bPassive));
    return Place(*m_lists.back(), CRect(0, 0, 390, 400), "list");
}

ProbeList& ListTest::ShowList(FakeContainer* pContainer, bool bPassive)
{
    ProbeList& list = MakeList(bPassive);
    list.SetRootAtom(pContainer);
    desktop.Run();
    editor.TakeLedger();
    TakeHooks();
    return list;
}

ProbeList& ListTest::HideList(FakeContainer* pContainer)
{
    ProbeList& list = ShowList(nullptr);
    list.ShowWindow(SW_HIDE);
    list.SetRootAtom(pContainer);
    editor.TakeLedger();
    TakeHooks();
    return list;
}

void ListTest::Click(ProbeList& list, int nRow, toolkit::MouseButton button)
{
    desktop.Click(list.m_hWnd, PointOf(list, nRow), button);
}

void ListTest::Hint(CListCtrl& list, int nFrom, int nTo)
{
    NMLVCACHEHINT hint{{list.m_hWnd, list.GetDlgCtrlID(), LVN_ODCACHEHINT}, nFrom, nTo};
    EXPECT_EQ(0, frame.SendMessage(WM_NOTIFY, hint.hdr.idFrom, reinterpret_cast<LPARAM>(&hint)));
}

std::string ListTest::Shown(CListCtrl& list, int nFirst, int nLast)
{
    std::string strShown;
    for (int i = nFirst; i <= nLast; ++i) {
        NMLVDISPINFO info{{list.m_hWnd, list.GetDlgCtrlID(), LVN_GETDISPINFO}, {}};
        info.item.mask = LVIF_TEXT | LVIF_IMAGE;
        info.item.iItem = i;
        frame.SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
        strShown += i > nFirst ? ", " : "";
        if (info.item.pszText)
            strShown += info.item.pszText + std::string(" ") + std::to_string(info.item.iImage);
    }
    return strShown;
}
