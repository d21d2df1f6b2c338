#include "tests/toolkit/ListControlFixture.h"

#include <sstream>

using namespace toolkit;

namespace
{

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
    ON_NOTIFY_REFLECT(NM_SETFOCUS, OnFocus)
    ON_NOTIFY_REFLECT(NM_KILLFOCUS, OnFocus)
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

void LedgerList::OnChanging(NMLISTVIEW* pChange, LRESULT* pResult)
{
    Write(RowName(pChange->iItem) + "?" + Change(*pChange), pResult);
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
    WriteBeginEdit(NameOf(pInfo->item.iItem), pInfo->item.pszText, pResult);
}

void LedgerList::OnEndEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    WriteEndEdit(NameOf(pInfo->item.iItem), pInfo->item.pszText, pResult);
}

void ListControlTest::SetUp()
{
    MakeTop(48, {RGB(255, 0, 0)});
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

CRect ListControlTest::Part(int row, int area) const
{
    CRect rect;
    list.GetItemRect(row, &rect, area);
    return rect;
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
