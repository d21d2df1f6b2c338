#include "Views/clipboard/inside/EditedName.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IAtom.h"
#include "Views/host/inside/ReadName.h"

LPSTR views::EditedName::Begin(IAtom* pAtom)
{
    CString strName;
    const bool bRead = ReadName(pAtom, &IAtom::GetName, strName);
    m_strName = bRead ? strName : CString();
    return bRead ? const_cast<LPSTR>(m_strName.GetString()) : nullptr;
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

BOOL views::EditedName::End(IAtom* pAtom, IAtomContainer* pContainer, LPCSTR pszTyped) const
{
    if (!pAtom || !pszTyped || (m_strName == pszTyped && IsOutdated(pAtom)))
        return FALSE;
    return RenameObject(pAtom, pContainer, pszTyped);
}
