#include "Toolkit/exchange/DropTarget.h"

#include "Toolkit/exchange/DataCache.h"
#include "Toolkit/handle/DropSite.h"
#include "Toolkit/scroll/ScrollBar.h"

namespace
{
using toolkit::DragPlace;
using toolkit::OfferedData;

// This program's own data is had as it is, in any medium.
std::shared_ptr<toolkit::DataProvider> ProviderOf(const std::shared_ptr<OfferedData>& data)
{
    if (auto own = std::dynamic_pointer_cast<toolkit::DataProvider>(data))
        return own;
    return std::make_shared<toolkit::ForeignData>(data);
}

// One line towards the edge that is nearer, when there is one to scroll.
bool ScrollBarTowards(CWnd& wnd, int nBar, int at, int extent)
{
    SCROLLINFO info{};
    const bool bShown = wnd.GetStyle() & (nBar == SB_VERT ? WS_VSCROLL : WS_HSCROLL);
    if (!bShown || !GetScrollInfo(wnd.m_hWnd, nBar, &info))
        return false;
    const bool bBack = at < toolkit::kDragScrollEdge;
    if (!bBack && at < extent - toolkit::kDragScrollEdge)
        return false;
    if (info.nPos == (bBack ? info.nMin : toolkit::ScrollBar::LastPosition(info)))
        return false;
    wnd.SendMessage(nBar == SB_VERT ? WM_VSCROLL : WM_HSCROLL, bBack ? SB_LINEUP : SB_LINEDOWN);
    return true;
}
} // namespace

class COleDropTarget::Site final : public toolkit::DropSite
{
public:
    explicit Site(COleDropTarget& target) : m_target(target) {}

    DROPEFFECT Enter(const Data& data, const DragPlace& place) override
    {
        COleDataObject object(ProviderOf(data));
        return m_target.OnDragEnter(CWnd::FromHandle(place.hWnd), &object, place.dwKeyState, place.at);
    }

    DROPEFFECT Over(const Data& data, const DragPlace& place) override
    {
        COleDataObject object(ProviderOf(data));
        return m_target.OnDragOver(CWnd::FromHandle(place.hWnd), &object, place.dwKeyState, place.at);
    }

    void Leave(HWND hWnd) override { m_target.OnDragLeave(CWnd::FromHandle(hWnd)); }

    bool Scroll(const DragPlace& place) override
    {
        return m_target.OnDragScroll(CWnd::FromHandle(place.hWnd), place.dwKeyState, place.at) & DROPEFFECT_SCROLL;
    }

    DROPEFFECT Drop(const Data& data, const DragPlace& place, DROPEFFECT effect, DROPEFFECT allowed) override
    {
        COleDataObject object(ProviderOf(data));
        const DROPEFFECT performed =
            m_target.OnDropEx(CWnd::FromHandle(place.hWnd), &object, effect, allowed, place.at);
        if (performed != kNotHandled)
            return performed;
        if (toolkit::FindDropSite(place.hWnd) != this)
            return DROPEFFECT_NONE; // gone with its target
        return m_target.OnDrop(CWnd::FromHandle(place.hWnd), &object, effect, place.at) ? effect : DROPEFFECT_NONE;
    }

    void WindowGone() override { m_target.Revoke(); }

private:
    COleDropTarget& m_target;
};

COleDropTarget::COleDropTarget() : m_site(std::make_unique<Site>(*this)) {}

COleDropTarget::~COleDropTarget()
{
    COleDropTarget::Revoke();
}

BOOL COleDropTarget::Register(CWnd* pWnd)
{
    if (toolkit::FindDropSite(m_hWnd) == m_site.get() || !toolkit::RegisterDropSite(pWnd->GetSafeHwnd(), m_site.get()))
        return FALSE;
    m_hWnd = pWnd->GetSafeHwnd();
    return TRUE;
}

void COleDropTarget::Revoke()
{
    if (toolkit::FindDropSite(m_hWnd) == m_site.get())
        toolkit::RevokeDropSite(m_hWnd);
}

DROPEFFECT COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint)
{
    return DROPEFFECT_NONE;
}

DROPEFFECT COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint)
{
    return DROPEFFECT_NONE;
}

BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint)
{
    return FALSE;
}

DROPEFFECT COleDropTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint)
{
    return kNotHandled;
}

void COleDropTarget::OnDragLeave(CWnd*) {}

DROPEFFECT COleDropTarget::OnDragScroll(CWnd* pWnd, DWORD, CPoint point)
{
    CRect client;
    pWnd->GetClientRect(&client);
    const bool bDown = ScrollBarTowards(*pWnd, SB_VERT, point.y, client.Height());
    const bool bAcross = IsWindow(pWnd->GetSafeHwnd()) && ScrollBarTowards(*pWnd, SB_HORZ, point.x, client.Width());
    return bDown || bAcross ? DROPEFFECT_SCROLL : DROPEFFECT_NONE;
}
