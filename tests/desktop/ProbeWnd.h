// A window that notes what it is told.
#pragma once

#include "Toolkit/menu/Menu.h"
#include "Toolkit/window/Wnd.h"

#include <functional>
#include <map>
#include <string>

// Notes the messages it gets: "ldown 10,20", "key F2", "char 233", "size 200,120". Asked to close, it stays.
class CProbeWnd : public CWnd
{
public:
    explicit CProbeWnd(const char* pszTitle = "Probe", const CRect& place = CRect(0, 0, 200, 120));

    std::string TakeLog(); // what was noted since, in order, separated by "; "

    COLORREF m_color = RGB(255, 255, 255);         // the whole client area's, when painted
    std::map<UINT, std::function<void()>> m_after; // what else is to be done after a message

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    virtual void Note(const std::string& entry);

private:
    void Paint();

    std::string m_log;
};

void FillMenu(CMenu& menu); // Open, Grid (2, checked), -, Paste (grayed), New > Folder (3)
