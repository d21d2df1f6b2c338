#include "Views/clipboard/inside/EditedName.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/host/inside/ReadName.h"

bool views::EditedName::Begin(const HeldPair& pair, IAtomEditor* pEditor, IAEStateHandler* pView, LPSTR& pszText)
{
    if (!pair || !CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()) ||
        !pair.Notify(pEditor, pView, &IAEStateHandler::PreRenameAtom))
        return false;
    try {
        CString strName;
        const bool bRead = ReadName(pair.pAtom.Get(), &IAtom::GetName, strName);
        m_strName = bRead ? strName : CString();
        pszText = bRead ? const_cast<LPSTR>(m_strName.GetString()) : pszText;
        return true;
    } catch (CMemoryException& e) {
        e.ReportError();
        return false;
    }
}

bool views::EditedName::IsOutdated(IAtom* pAtom) const
{
    try {
        CString strNow;
        return ReadName(pAtom, &IAtom::GetName, strNow) && strNow != m_strName;
    } catch (CMemoryException& e) {
        e.ReportError();
        return true;
    }
}

BOOL views::EditedName::End(const HeldPair& pair, LPCSTR pszTyped) const
{
    IAtom* const pAtom = pair.pAtom.Get();
    if (!pAtom || !pszTyped || (m_strName == pszTyped && IsOutdated(pAtom)))
        return FALSE;
    return RenameObject(pAtom, pair.pContainer.Get(), pszTyped);
}
