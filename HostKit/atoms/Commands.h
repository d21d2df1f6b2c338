// What commands of every host have in common, besides Views/clipboard/clipboard.h.
#pragma once

#include "HostKit/base/Api.h"

#include <string>

class IAtomContainer;

namespace hostkit
{

class CAtomEditor;

// Adds what was copied or cut, here or in another program, to the container. Empty when all of it was; else the reason.
HOSTKIT_API std::string PasteAtoms(CAtomEditor& editor, IAtomContainer* pContainer);
inline constexpr const char* kCannotBeRead = "what was copied cannot be read"; // GetLastError may say why

// What the container says went wrong last, in one line.
HOSTKIT_API std::string ErrorOf(IAtomContainer* pContainer, std::string otherwise);

// Shows the reason in a message box of that caption (a text of the resources). Empty: nothing.
HOSTKIT_API void ShowFailure(HWND hOwner, UINT nCaptionID, std::string reason);

// Asks the user, who goes on afterwards in the window that had the focus. nDefault may be MB_DEFBUTTON2.
HOSTKIT_API bool UserAgrees(const std::string& question, UINT nDefault = 0);

} // namespace hostkit
