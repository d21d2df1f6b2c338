// Message boxes, shown by the desktop.
#pragma once

#include "Toolkit/desktop/MessageBoxTypes.h"

// Waits for the user; the button's identifier. Messages run meanwhile: touch nothing afterwards that may be gone.
TOOLKIT_API int MessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType);
// On the application's main window, under the application's name.
TOOLKIT_API int AfxMessageBox(LPCSTR pszText, UINT nType = MB_OK);
TOOLKIT_API void AfxSetAppName(LPCSTR pszName);
TOOLKIT_API LPCSTR AfxGetAppName(); // valid until it is set again; "" at first
