#include "Toolkit/menu/MessageBox.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/Wnd.h"

namespace
{
CString& AppName()
{
    static CString name;
    return name;
}

// The report of an error must not raise another one.
int ShowError(LPCSTR pszText)
{
    try {
        return AfxMessageBox(pszText, MB_OK | MB_ICONEXCLAMATION);
    } catch (...) {
        return 0;
    }
}

[[maybe_unused]] const bool s_bInstalled = (toolkit::SetReportErrorProc(&ShowError), true);
} // namespace

int MessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType)
{
    ReleaseCapture();
    toolkit::UpdateWake();
    return toolkit::CurrentDesktop().ShowMessageBox(hOwner, pszText ? pszText : "", pszCaption ? pszCaption : "",
                                                    nType);
}

int AfxMessageBox(LPCSTR pszText, UINT nType)
{
    const CWnd* pMain = AfxGetMainWnd();
    return MessageBox(pMain ? pMain->GetSafeHwnd() : nullptr, pszText, AppName(), nType);
}

void AfxSetAppName(LPCSTR pszName)
{
    AppName() = pszName;
}

LPCSTR AfxGetAppName()
{
    return AppName();
}
