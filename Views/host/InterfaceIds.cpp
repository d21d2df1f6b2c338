#include "Views/host/InterfaceIds.h"

#include "Kernel/Kernel.h"
#include "Views/host/IFileStream.h"
#include "Views/host/inside/ServiceCalls.h"

// All that the library does at load, in one file because only there the order is certain. The order is part of
// the contract with the kernel, which may number the names as they come.
const DWORD IID_IPhase = INT_GetUniqueInterfaceID("IPhase");
const DWORD IID_IImageLink = INT_GetUniqueInterfaceID("IImageLink");
const DWORD IID_IArchive = INT_GetUniqueInterfaceID("IArchive");
const DWORD IID_ICharacterLibrary = INT_GetUniqueInterfaceID("ICharacterLibrary");
const DWORD IID_IAtom = INT_GetUniqueInterfaceID("IAtom");
const DWORD IID_IDispAtom = INT_GetUniqueInterfaceID("IDispAtom");
const DWORD IID_IAtomContainer = INT_GetUniqueInterfaceID("IAtomContainer");
const DWORD IID_IAEStateHandler = INT_GetUniqueInterfaceID("IAEStateHandler");
const DWORD IID_IAtomIcon = INT_GetUniqueInterfaceID("IAtomIcon");
const DWORD IID_IMyErrorInfo = INT_GetUniqueInterfaceID("IMyErrorInfo");
const DWORD IID_IAtomThumbnail = INT_GetUniqueInterfaceID("IAtomThumbnail");

DWORD IFileStream::Id()
{
    static const DWORD s_id = INT_GetUniqueInterfaceID("IFileStream");
    return s_id;
}

SERVICEREC* const g_pMemoryStreamService = SRVN_GetUniqueServiceID(views::kMemoryStreamService);
