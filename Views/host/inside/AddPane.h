// Inside the library.
#pragma once

#include "Toolkit/base/Types.h"

class IAtomEditor;

namespace views
{

// Shows a view's window as a pane with a string and an icon of the host's. When memory runs out, the user is told, and
// the pane comes without the icon, or with the other caption in place of the string. The window may be gone afterwards.
void AddPane(IAtomEditor* pEditor, DWORD dwKind, HWND hWnd, UINT nCaptionID, UINT nIconID, LPCSTR pszOtherCaption);

} // namespace views
