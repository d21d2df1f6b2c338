// What the fixtures of list and tree control have in common: a control that writes down what it is told, in a window
// with another one.
#pragma once

#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/window/Wnd.h"
#include "tests/support/DesktopTest.h"

#include <functional>

template <class Control>
class LedgerControl : public Control
{
public:
    std::function<bool(const std::string& line)> refuses = [](const std::string&) { return false; };
    std::function<void(const std::string& line)> meanwhile = [](const std::string&) {};

    Ledger TakeLedger() { return book.TakeLedger(); }

    LedgerBook book;

protected:
    void Write(const std::string& line, LRESULT* pResult = nullptr)
    {
        book.Write(line);
        if (pResult)
            *pResult = refuses(line);
        meanwhile(line);
    }
    void WriteBeginEdit(const std::string& name, LPCSTR pszText, LRESULT* pResult)
    {
        Write("edit " + name + " '" + pszText + "'?", pResult);
    }
    void WriteEndEdit(const std::string& name, LPCSTR pszText, LRESULT* pResult)
    {
        Write("edited " + name + (pszText ? " '" + std::string(pszText) + "'" : " not"), pResult);
    }
    afx_msg void OnFocus(NMHDR* pHeader, LRESULT*)
    {
        Write(pHeader->code == NM_SETFOCUS ? "focus comes" : "focus goes");
    }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Write("menu"); }
};

class ItemControlTest : public DesktopTest
{
protected:
    void MakeTop(int imageExtent, std::initializer_list<COLORREF> colors)
    {
        ASSERT_TRUE(top.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 600, 320), nullptr, 0));
        ASSERT_TRUE(other.CreateEx(0, "", "", WS_CHILD | WS_VISIBLE, CRect(400, 0, 500, 100), &top, kControlID + 1));
        ASSERT_TRUE(images.Create(imageExtent, imageExtent, ILC_COLOR32, 0, 4));
        for (const COLORREF color : colors) {
            const toolkit::Surface picture({imageExtent, imageExtent}, toolkit::ToPixel(color));
            const HBITMAP hPicture = CreateBitmapFromSurface(picture);
            ImageList_Add(images.GetSafeHandle(), hPicture, nullptr);
            DeleteBitmap(hPicture);
        }
    }

    static constexpr int kControlID = 7;
    CImageList images;
    CWnd top;
    CWnd other; // can take the focus
};
