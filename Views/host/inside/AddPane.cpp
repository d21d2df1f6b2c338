#include "Views/host/inside/AddPane.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/graphics/Resources.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/inside/GdiHolders.h"

namespace
{

views::IconHolder LoadPaneIcon(UINT nIconID)
{
    try {
        return views::IconHolder(::LoadIcon(LOWORD(nIconID)));
    } catch (CMemoryException& e) {
        e.ReportError();
        return nullptr;
    }
}

} // namespace

void views::AddPane(IAtomEditor* pEditor, DWORD dwKind, HWND hWnd, UINT nCaptionID, UINT nIconID,
                    LPCSTR pszOtherCaption)
{
    const IconHolder hIcon = LoadPaneIcon(nIconID);
    try {
        CString strCaption;
        strCaption.LoadString(nCaptionID);
        pEditor->AddPane(dwKind, hWnd, strCaption, hIcon.get());
    } catch (CMemoryException& e) {
        e.ReportError();
        pEditor->AddPane(dwKind, hWnd, pszOtherCaption, hIcon.get());
    }
}
