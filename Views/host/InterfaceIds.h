// The numbers of the host's interfaces, obtained from the kernel when the library is loaded.
#pragma once

#include "Views/host/Api.h"

class IAEStateHandler;
class IArchive;
class IAtom;
class IAtomContainer;
class IAtomIcon;
class IAtomThumbnail;
class ICharacterLibrary;
class IDispAtom;
class IImageLink;
class IMyErrorInfo;
class IPhase;

VIEWS_API extern const DWORD IID_IPhase;
VIEWS_API extern const DWORD IID_IImageLink;
VIEWS_API extern const DWORD IID_IArchive;
VIEWS_API extern const DWORD IID_ICharacterLibrary;
VIEWS_API extern const DWORD IID_IAtom;
VIEWS_API extern const DWORD IID_IDispAtom;
VIEWS_API extern const DWORD IID_IAtomContainer;
VIEWS_API extern const DWORD IID_IAEStateHandler;
VIEWS_API extern const DWORD IID_IAtomIcon;
VIEWS_API extern const DWORD IID_IMyErrorInfo;
VIEWS_API extern const DWORD IID_IAtomThumbnail;

// The number that belongs to an interface type: InterfaceIdOf<IAtom>() is IID_IAtom.
template <class Interface>
DWORD InterfaceIdOf();

// clang-format off
template <> inline DWORD InterfaceIdOf<IPhase>() { return IID_IPhase; }
template <> inline DWORD InterfaceIdOf<IImageLink>() { return IID_IImageLink; }
template <> inline DWORD InterfaceIdOf<IArchive>() { return IID_IArchive; }
template <> inline DWORD InterfaceIdOf<ICharacterLibrary>() { return IID_ICharacterLibrary; }
template <> inline DWORD InterfaceIdOf<IAtom>() { return IID_IAtom; }
template <> inline DWORD InterfaceIdOf<IDispAtom>() { return IID_IDispAtom; }
template <> inline DWORD InterfaceIdOf<IAtomContainer>() { return IID_IAtomContainer; }
template <> inline DWORD InterfaceIdOf<IAEStateHandler>() { return IID_IAEStateHandler; }
template <> inline DWORD InterfaceIdOf<IAtomIcon>() { return IID_IAtomIcon; }
template <> inline DWORD InterfaceIdOf<IMyErrorInfo>() { return IID_IMyErrorInfo; }
template <> inline DWORD InterfaceIdOf<IAtomThumbnail>() { return IID_IAtomThumbnail; }
// clang-format on
