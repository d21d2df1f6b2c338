// The library's host frame: how views and host reach each other.
//
// The host owns every object. It implements the interfaces declared here, registers its services with the
// kernel (Kernel/Kernel.h) and hands the views pointers; the library reaches everything else from those.
// An object's interfaces derive virtually from CStubBaseInterface; one interface gives another of the same
// object by GetInterface with the identifiers of InterfaceIds.h, a related object by an operation with an
// out-pointer. Whatever arrives through an out-pointer carries a reference, which CStubRef holds and gives
// back; arguments are borrowed for the call. Every out-pointer may stay NULL and every BOOL may be FALSE: not
// available. Positions of operations count the interface's own ones from 1, in the order of declaration;
// reserved ones only keep the places and are never called.
//
// The atom editor stands in the middle. Views register with it as state handlers and reach each other through
// its broadcasts alone. All calls, in both directions, come on the user-interface thread.
#pragma once

#include "Views/host/FocusBlock.h"
#include "Views/host/IAEStateHandler.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtom.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/IAtomIcon.h"
#include "Views/host/IAtomThumbnail.h"
#include "Views/host/ICharacterLibrary.h"
#include "Views/host/IDispAtom.h"
#include "Views/host/IFileStream.h"
#include "Views/host/IMemoryStream.h"
#include "Views/host/IMyErrorInfo.h"
#include "Views/host/IPhase.h"
#include "Views/host/InterfaceIds.h"
#include "Views/host/MemberOrder.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"
#include "Views/host/StateHandler.h"
#include "Views/host/StubRef.h"
#include "Views/host/TopLevelAtom.h"
