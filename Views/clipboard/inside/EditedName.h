// Inside the library: renaming an atom in place of its label.
//
// What is edited is the atom's own name, whatever the label shows in its place or behind it: a name that the user
// leaves as it is stays as it is, and so does one that has changed meanwhile.
#pragma once

#include "Toolkit/base/String.h"

class IAEStateHandler;
class IAtomEditor;

namespace views
{

struct HeldPair;

// Whether the atom may have a new name: its container lets it, and nobody whom the editor asks for the view (NULL:
// nobody is asked) refuses. The editing begins with pszText then, to be read, not written: strName, or what it was
// where the atom does not give its name. Running out of memory is reported.
bool BeginRename(const HeldPair& pair, IAtomEditor* pEditor, IAEStateHandler* pView, CString& strName, LPSTR& pszText);

// Renames the atom to what the user has made of strName (NULL: nothing). FALSE when it is not called so.
BOOL EndRename(const HeldPair& pair, const CString& strName, LPCSTR pszTyped);

} // namespace views
