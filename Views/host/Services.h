// The host's services, and calling them.
#pragma once

#include "Kernel/ServiceRec.h"
#include "Views/host/Api.h"

class IAtomEditor;
class IMyErrorInfo;

namespace views
{
// What a host provides under these names (Kernel/Kernel.h) before the first view is created. A view does without what
// is missing: without an atom editor it tells and asks nobody, without the others it shows no error and carries
// nothing.
inline constexpr LPCSTR kAtomEditorService = "GetAtomEditorSv";         // an IAtomEditor*, with a reference
inline constexpr LPCSTR kErrorService = "ShowErrorSv";                  // asked with an ERRORREQUEST
inline constexpr LPCSTR kMemoryStreamService = "ConstructMemoryStream"; // a new IMemoryStream*, with a reference
inline constexpr LPCSTR kArchiveClass = "CArchiveImp";                  // of the kernel object: an IArchive
} // namespace views

// What the error service is asked with; it shows the error to the user.
struct ERRORREQUEST
{
    HWND hOwner;          // the window that the message belongs to; may be NULL
    LPCSTR pszCaption;    // valid for the call
    IMyErrorInfo* pError; // borrowed; may be NULL
};
static_assert(sizeof(ERRORREQUEST) == 3 * sizeof(void*));

// Has a service serve a request. FALSE, and the buffer is as it was, without a provider (the lock is not touched
// then) or when the provider refuses. The lock is held for the provider's call alone.
VIEWS_API BOOL CallService(SERVICEREC* rec, void* buffer, DWORD size, DWORD extra);

// The atom editor, with a reference that the caller releases when its operation is done; NULL without one.
VIEWS_API IAtomEditor* GetAtomEditor();

// Has the host show an object's error (borrowed, may be NULL) under the caption of that string resource. Nothing
// happens without a provider.
VIEWS_API void ShowAtomError(HWND owner, UINT nCaptionID, IMyErrorInfo* error);
