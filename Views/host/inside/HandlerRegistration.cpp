#include "Views/host/inside/HandlerRegistration.h"

#include "Toolkit/window/WindowApi.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <utility>

bool views::HandlerRegistration::Begin(IAtomEditor* pEditor, HWND hWnd, IAEStateHandler* pHandler)
{
    const DWORD dwCookie = pEditor->RegisterHandler(hWnd, pHandler);
    if (!::IsWindow(hWnd)) {
        pEditor->UnregisterHandler(dwCookie);
        return false;
    }
    m_cookie = dwCookie;
    return true;
}

void views::HandlerRegistration::End()
{
    const std::optional<DWORD> cookie = std::exchange(m_cookie, std::nullopt);
    if (!cookie)
        return;
    if (const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor()))
        pEditor->UnregisterHandler(*cookie);
}
