// Inside the library.
#pragma once

#include "Views/host/Services.h"

// A service record fetched when the library is loaded. A pointer's size out: a new IMemoryStream, with a reference for
// the caller.
extern SERVICEREC* const g_pMemoryStreamService;

namespace views
{

// For whoever has the caption before the error is asked for.
void ShowAtomError(HWND owner, LPCSTR pszCaption, IMyErrorInfo* error);

} // namespace views
