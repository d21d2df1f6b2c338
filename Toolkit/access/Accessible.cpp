#include "Toolkit/access/Accessible.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Messages.h"

namespace toolkit
{
namespace
{

Accessible* FindDescription(HWND hWnd)
{
    static Accessible s_plain;
    const WindowRecord* const pWindow = FindRecord(hWnd);
    if (!pWindow)
        return &s_plain;
    if (auto* const pTells = dynamic_cast<Accessible*>(pWindow->pWnd))
        return pTells;
    auto* const pTells = dynamic_cast<Accessible*>(pWindow->pNative.get());
    return pTells ? pTells : &s_plain;
}

std::string TextOf(HWND hWnd)
{
    const auto length = static_cast<std::size_t>(SendMessage(hWnd, WM_GETTEXTLENGTH, 0, 0));
    std::string text(length + 1, '\0');
    text.resize(
        static_cast<std::size_t>(SendMessage(hWnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

} // namespace

AccessibleOf::AccessibleOf(HWND hWnd) : m_hold(hWnd), m_pTells(FindDescription(hWnd)) {}

std::string AccessibleWindowName(HWND hWnd)
{
    const AccessibleOf tells(hWnd);
    if (std::string name = tells->AccName(CHILDID_SELF); !name.empty())
        return name;
    const WindowRecord* const pWindow = FindRecord(hWnd);
    if (pWindow && !pWindow->accessibleName.IsEmpty())
        return std::string(pWindow->accessibleName.View());
    return tells->AccRole(CHILDID_SELF) == ROLE_SYSTEM_TEXT ? std::string() : TextOf(hWnd);
}

std::vector<HWND> AccessibleChildren(HWND hWnd)
{
    std::vector<HWND> children;
    if (const WindowRecord* const pWindow = FindRecord(hWnd))
        for (const WindowRecord* const pChild : pWindow->children)
            if (pChild->Is(WS_VISIBLE))
                children.push_back(pChild->hWnd);
    return children;
}

int AccessibleParts::AccCount(LPARAM parent)
{
    return parent == CHILDID_SELF ? static_cast<int>(AccParts().size()) : 0;
}

LPARAM AccessibleParts::AccAt(CPoint client)
{
    LPARAM item = CHILDID_SELF;
    for (const Part& part : AccParts()) {
        ++item;
        if (part.place.PtInRect(client))
            return item;
    }
    return CHILDID_SELF;
}

AccessibleParts::Part AccessibleParts::Find(LPARAM item)
{
    if (item == CHILDID_SELF)
        return AccWindow();
    std::vector<Part> parts = AccParts();
    return item > 0 && item <= static_cast<LPARAM>(parts.size()) ? parts[static_cast<std::size_t>(item) - 1] : Part();
}

} // namespace toolkit

void NotifyWinEvent(DWORD event, HWND hWnd, LONG, LPARAM idChild)
{
    toolkit::CurrentDesktop().AccessibleChanged(event, hWnd, idChild);
}

BOOL SetAccessibleName(HWND hWnd, LPCSTR pszName)
{
    toolkit::WindowRecord* const pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    pWindow->accessibleName = pszName ? pszName : "";
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, hWnd, OBJID_CLIENT, CHILDID_SELF);
    return TRUE;
}
