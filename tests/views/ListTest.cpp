#include "tests/views/ListTest.h"

std::string ProbeList::State() const
{
    std::string strState;
    for (int i = 0; i < GetItemCount(); ++i) {
        const OBJPAIR* pPair = Pair(i);
        std::string strRow = NameOf(pPair ? pPair->pAtom : nullptr);
        if (GetItemState(i, LVIS_SELECTED))
            strRow = "*" + strRow;
        if (GetItemState(i, LVIS_FOCUSED))
            strRow = "(" + strRow + ")";
        strState += (strState.empty() ? "" : " ") + strRow;
    }
    return "[" + strState + "]";
}

std::string ProbeList::Names() const
{
    std::string strNames;
    for (int i = 0; i < GetItemCount(); ++i)
        strNames += (i ? " " : "") + NameOf(Pair(i) ? Pair(i)->pAtom : nullptr);
    return strNames;
}

void ProbeList::OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData)
{
    m_hooks.push_back("uncache " + std::to_string(nItem) + " " + NameOf(pAtom) + " in " + NameOf(pContainer) + " \"" +
                      pData->strText.GetString() + "\"");
    CIconList::OnUncacheItem(nItem, pAtom, pContainer, pData);
}

void ProbeList::OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData)
{
    m_hooks.push_back("cache " + std::to_string(nItem) + " " + NameOf(pAtom) + " in " + NameOf(pContainer) + " \"" +
                      pData->strText.GetString() + "\"");
    CIconList::OnCacheItem(nItem, pAtom, pContainer, pData);
}

void ProbeList::OnClearContext()
{
    m_hooks.push_back("clear");
    CIconList::OnClearContext();
}

ListTest::ListTest()
{
    resources.AddString(1008, "Icons");
    resources.AddIcon(1008, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1006, toolkit::Surface(CSize(48, 48), 0xFFFFFF00));
}

ProbeList& ListTest::MakeList(const Shape& shape)
{
    ProbeList& list = *m_lists.emplace_back(std::make_unique<ProbeList>(hooks, shape.passive));
    editor.Call(&list, shape.name);
    EXPECT_TRUE(list.Create(&frame));
    list.MoveWindow(CRect(shape.x, 0, shape.x + 390, 400));
    list.ShowWindow(SW_SHOW);
    desktop.Run();
    return list;
}

ProbeList& ListTest::ShowList(FakeContainer* pContainer, const Shape& shape)
{
    ProbeList& list = MakeList(shape);
    EXPECT_TRUE(list.SetRootAtom(pContainer));
    desktop.Run();
    editor.TakeLedger();
    TakeHooks();
    return list;
}

void ListTest::Click(ProbeList& list, int nRow, toolkit::MouseButton button)
{
    desktop.Click(list.m_hWnd, PointOf(list, nRow), button);
}

CPoint ListTest::PointOf(ProbeList& list, int nRow) const
{
    CRect rect;
    EXPECT_TRUE(list.GetItemRect(nRow, &rect, LVIR_ICON));
    return rect.CenterPoint();
}

CPoint ListTest::EmptyPoint(ProbeList& list) const
{
    CRect rect;
    list.GetClientRect(&rect);
    return {rect.right - 3, rect.bottom - 3};
}

void ListTest::Hint(CListCtrl& list, int nFrom, int nTo)
{
    NMLVCACHEHINT hint{{list.m_hWnd, list.GetDlgCtrlID(), LVN_ODCACHEHINT}, nFrom, nTo};
    EXPECT_EQ(0, frame.SendMessage(WM_NOTIFY, hint.hdr.idFrom, reinterpret_cast<LPARAM>(&hint)));
}

std::string ListTest::Shown(CListCtrl& list, int nRow)
{
    NMLVDISPINFO info{{list.m_hWnd, list.GetDlgCtrlID(), LVN_GETDISPINFO}, {}};
    info.item.mask = LVIF_TEXT | LVIF_IMAGE;
    info.item.iItem = nRow;
    frame.SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
    return info.item.pszText ? info.item.pszText + std::string(" ") + std::to_string(info.item.iImage) : "";
}
