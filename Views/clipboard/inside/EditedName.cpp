#include "Views/clipboard/inside/EditedName.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/host/inside/ReadName.h"

namespace
{

bool IsOutdated(IAtom* pAtom, const CString& strName)
{
    try {
        CString strNow;
        return views::ReadName(pAtom, &IAtom::GetName, strNow) && strNow != strName;
    } catch (CMemoryException& e) {
        e.ReportError();
        return true;
    }
}

} // namespace

bool views::BeginRename(const HeldPair& pair, IAtomEditor* pEditor, IAEStateHandler* pView, CString& strName,
                        LPSTR& pszText)
{
    if (!pair || !CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()) ||
        !pair.Notify(pEditor, pView, &IAEStateHandler::PreRenameAtom))
        return false;
    try {
        CString strRead;
        const bool bRead = ReadName(pair.pAtom.Get(), &IAtom::GetName, strRead);
        strName = bRead ? strRead : CString();
        pszText = bRead ? const_cast<LPSTR>(strName.GetString()) : pszText;
        return true;
    } catch (CMemoryException& e) {
        e.ReportError();
        return false;
    }
}

BOOL views::EndRename(const HeldPair& pair, const CString& strName, LPCSTR pszTyped)
{
    if (!pair || !pszTyped || (strName == pszTyped && IsOutdated(pair.pAtom.Get(), strName)))
        return FALSE;
    return RenameObject(pair.pAtom.Get(), pair.pContainer.Get(), pszTyped);
}
