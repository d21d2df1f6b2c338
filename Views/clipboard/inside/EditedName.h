// Inside the library.
#pragma once

#include "Toolkit/base/String.h"

class IAtom;
class IAtomContainer;

namespace views
{

// The name that a view has edited in place of a label.
//
// It is the atom's own, whatever the label shows in its place or behind it: a name that the user leaves as it is stays
// as it is, and so does one that has changed meanwhile.
class EditedName
{
public:
    // The name that the editing begins with, to be read, not written; NULL when the atom does not give it. Raises
    // CMemoryException.
    LPSTR Begin(IAtom* pAtom);
    // Renames the atom to what the user has made of it (NULL: nothing). FALSE when it is not called so.
    BOOL End(IAtom* pAtom, IAtomContainer* pContainer, LPCSTR pszTyped) const;

private:
    bool IsOutdated(IAtom* pAtom) const;

    CString m_strName;
};

} // namespace views
