#include "tests/toolkit/ListControlFixture.h"

#include <sstream>

using namespace toolkit;

namespace
{

constexpr int kControlID = 7;

std::string RowName(int row)
{
    return row < 0 ? "all" : LedgerList::NameOf(row);
}

std::string Change(const NMLISTVIEW& change)
{
    std::string text;
    const std::pair<UINT, const char*> names[] = {{LVIS_SELECTED, "selected"}, {LVIS_FOCUSED, "focused"}};
    for (const auto& [state, name] : names)
        if ((change.uNewState ^ change.uOldState) & state)
            text += std::string(change.uNewState & state ? " +" : " -") + name;
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(LedgerList, CListCtrl)
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGING, OnChanging)
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, OnChanged)
    ON_NOTIFY_REFLECT(LVN_ODCACHEHINT, OnHint)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, OnDispInfo)
    ON_NOTIFY_REFLECT(LVN_BEGINDRAG, OnDrag)
    ON_NOTIFY_REFLECT(LVN_BEGINRDRAG, OnDrag)
    ON_NOTIFY_REFLECT(LVN_BEGINLABELEDIT, OnBeginEdit)
    ON_NOTIFY_REFLECT(LVN_ENDLABELEDIT, OnEndEdit)
    ON_NOTIFY_REFLECT(NM_CLICK, OnClick)
    ON_NOTIFY_REFLECT(NM_RCLICK, OnClick)
    ON_NOTIFY_REFLECT(NM_DBLCLK, OnClick)
    ON_NOTIFY_REFLECT(NM_SETFOCUS, OnEvent)
    ON_NOTIFY_REFLECT(NM_KILLFOCUS, OnEvent)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

std::string LedgerList::NameOf(int row)
{
    return row < 26 ? std::string(1, static_cast<char>('a' + row)) : std::to_string(row);
}

LRESULT LedgerList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (keepsMouseMoves && (message == WM_MOUSEMOVE || message == WM_TIMER))
        return 0;
    return CListCtrl::WindowProc(message, wParam, lParam);
}

void LedgerList::Write(const std::string& line)
{
    book.Write(line);
    meanwhile(line);
}

void LedgerList::OnChanging(NMLISTVIEW* pChange, LRESULT* pResult)
{
    const std::string line = RowName(pChange->iItem) + "?" + Change(*pChange);
    *pResult = refuses(line);
    Write(line);
}

void LedgerList::OnChanged(NMLISTVIEW* pChange, LRESULT*)
{
    Write(RowName(pChange->iItem) + ":" + Change(*pChange));
}

void LedgerList::OnHint(NMLVCACHEHINT* pHint, LRESULT*)
{
    if (writesPaints)
        Write("hint " + NameOf(pHint->iFrom) + "-" + NameOf(pHint->iTo));
}

void LedgerList::OnDispInfo(NMLVDISPINFO* pInfo, LRESULT*)
{
    static std::string shown; // as a cache does, the list lends its own text
    const int row = pInfo->item.iItem;
    shown = text(row);
    pInfo->item.pszText = shown.data();
    pInfo->item.iImage = 0;
    if (writesPaints)
        Write("show " + NameOf(row));
}

void LedgerList::OnDrag(NMLISTVIEW* pDrag, LRESULT*)
{
    Write((pDrag->hdr.code == LVN_BEGINDRAG ? "drag " : "right drag ") + NameOf(pDrag->iItem));
}

void LedgerList::OnClick(NMITEMACTIVATE* pClick, LRESULT*)
{
    const UINT code = pClick->hdr.code;
    const std::string kind = code == NM_CLICK ? "click " : code == NM_RCLICK ? "right click " : "double click ";
    Write(kind + (pClick->iItem < 0 ? "nothing" : NameOf(pClick->iItem)));
}

void LedgerList::OnBeginEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    const std::string line = "edit " + NameOf(pInfo->item.iItem) + " '" + pInfo->item.pszText + "'?";
    *pResult = refuses(line);
    Write(line);
}

void LedgerList::OnEndEdit(NMLVDISPINFO* pInfo, LRESULT*)
{
    const LPCSTR pszText = pInfo->item.pszText;
    Write("edited " + NameOf(pInfo->item.iItem) + (pszText ? " '" + std::string(pszText) + "'" : " not"));
}

void LedgerList::OnEvent(NMHDR* pHeader, LRESULT*)
{
    Write(pHeader->code == NM_SETFOCUS ? "focus comes" : "focus goes");
}

void ListControlTest::SetUp()
{
    ASSERT_TRUE(top.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 600, 320), nullptr, 0));
    ASSERT_TRUE(other.CreateEx(0, "", "", WS_CHILD | WS_VISIBLE, CRect(400, 0, 500, 100), &top, kControlID + 1));
    ASSERT_TRUE(images.Create(48, 48, ILC_COLOR32, 0, 4));
    const HBITMAP hRed = CreateBitmapFromSurface(Surface({48, 48}, ToPixel(RGB(255, 0, 0))));
    ImageList_Add(images.GetSafeHandle(), hRed, nullptr);
    DeleteBitmap(hRed);
    ShowList(LVS_SHOWSELALWAYS);
    Fill(6);
    list.SetFocus();
    TakeLedger();
}

void ListControlTest::ShowList(DWORD style)
{
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA | style, CRect(0, 0, 330, 300), &top, kControlID));
    list.SetImageList(&images, LVSIL_NORMAL);
}

void ListControlTest::Fill(int rows)
{
    list.SetItemCount(rows);
    desktop.Run();
    TakeLedger();
}

CPoint ListControlTest::IconOf(int row) const
{
    CRect rect;
    list.GetItemRect(row, &rect, LVIR_ICON);
    return rect.CenterPoint();
}

CPoint ListControlTest::LabelOf(int row) const
{
    CRect rect;
    list.GetItemRect(row, &rect, LVIR_LABEL);
    return rect.CenterPoint();
}

std::string ListControlTest::State() const
{
    std::ostringstream text;
    for (int row = 0; row < list.GetItemCount(); ++row) {
        const UINT state = list.GetItemState(row, LVIS_SELECTED | LVIS_FOCUSED);
        const std::string name = std::string(state & LVIS_SELECTED ? "*" : "") + LedgerList::NameOf(row);
        text << (row ? " " : "[") << (state & LVIS_FOCUSED ? "(" + name + ")" : name);
    }
    return text.str() + "]";
}

std::string ListControlTest::Selected() const
{
    std::string text;
    for (int row = list.GetNextItem(-1, LVNI_SELECTED); row >= 0; row = list.GetNextItem(row, LVNI_SELECTED))
        text += LedgerList::NameOf(row);
    return text;
}

void ListControlTest::Click(int row, Modifiers modifiers)
{
    desktop.Hold(modifiers);
    desktop.Click(list.m_hWnd, IconOf(row));
    desktop.Hold({});
}

void ListControlTest::Drag(CPoint from, CPoint to, Modifiers modifiers)
{
    desktop.Hold(modifiers);
    desktop.Press(list.m_hWnd, from);
    desktop.MoveTo(list.m_hWnd, to);
    desktop.Hold({});
}

std::string ListControlTest::AfterDrag(int row, Modifiers modifiers, MouseButton button)
{
    desktop.Hold(modifiers);
    desktop.Press(list.m_hWnd, IconOf(row), button);
    desktop.MoveTo(list.m_hWnd, LabelOf(row));
    const std::string last = TakeLedger().back();
    desktop.Release(list.m_hWnd, LabelOf(row), button);
    desktop.Hold({});
    return last;
}
