// Inside the library.
#pragma once

#include "Toolkit/base/String.h"

class IAEStateHandler;
class IAtom;
class IAtomEditor;

namespace views
{

struct HeldPair;

// The name that a view has edited in place of a label.
//
// It is the atom's own, whatever the label shows in its place or behind it: a name that the user leaves as it is stays
// as it is, and so does one that has changed meanwhile.
class EditedName
{
public:
    // Whether the name may be edited: it may be changed, and nobody whom the editor asks (NULL: nobody is asked)
    // refuses. The editing begins with pszText then, to be read, not written, which stays as it is when the atom does
    // not give its name. Running out of memory is reported.
    bool Begin(const HeldPair& pair, IAtomEditor* pEditor, IAEStateHandler* pView, LPSTR& pszText);
    // Renames the atom to what the user has made of it (NULL: nothing). FALSE when it is not called so.
    BOOL End(const HeldPair& pair, LPCSTR pszTyped) const;

private:
    bool IsOutdated(IAtom* pAtom) const;

    CString m_strName;
};

} // namespace views
