#include "tests/toolkit/EditFixture.h"

#include <map>

BOOL FieldParent::OnCommand(WPARAM wParam, LPARAM lParam)
{
    static const std::map<UINT, std::string> names{{EN_SETFOCUS, "focus comes"},
                                                   {EN_KILLFOCUS, "focus goes"},
                                                   {EN_UPDATE, "update"},
                                                   {EN_CHANGE, "change"},
                                                   {EN_MAXTEXT, "too long"}};
    const auto it = names.find(HIWORD(wParam));
    if (it != names.end() && LOWORD(wParam) == 1) {
        book.Write(it->second);
        meanwhile(it->second);
    }
    return CWnd::OnCommand(wParam, lParam);
}

std::string FieldState(HWND hField)
{
    if (!hField)
        return "-";
    std::string text(GetWindowText(hField));
    DWORD start = 0, end = 0;
    SendMessage(hField, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    if (start == end)
        return text.insert(start, "|");
    return text.insert(end, "]").insert(start, "[");
}

CRect FieldRect(HWND hField)
{
    CRect rect;
    GetWindowRect(hField, &rect);
    CPoint corner;
    ClientToScreen(GetParent(hField), &corner);
    return rect - corner;
}

void EditTest::SetUp()
{
    ASSERT_TRUE(top.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 300, 100), nullptr, 0));
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 110, 34), &top, 1));
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 110, 74), &top, 2));
    edit.SetFocus();
    desktop.Run();
    TakeLedger();
}

void EditTest::Set(LPCSTR pszText)
{
    edit.SetWindowText(pszText);
    const int nEnd = edit.GetWindowText().GetLength();
    edit.SetSel(nEnd, nEnd);
    TakeLedger();
}

CPoint EditTest::At(int position) const
{
    return edit.PosFromChar(static_cast<UINT>(position)) + CPoint(0, 5);
}

std::string EditTest::Clipboard()
{
    return desktop.ReadPublished("text/plain;charset=utf-8").value_or("-");
}

void EditTest::TakeClipboard(const std::string& text)
{
    desktop.TakeClipboard({{"text/plain;charset=utf-8", text}});
}
