// Names as they go from host to views and back: a buffer, and its length.
#pragma once

#include "HostKit/base/Api.h"
#include "Views/host/IAtom.h"

#include <string>
#include <string_view>

namespace hostkit
{

// Answers GetName or GetDisplayName. FALSE, and *pLength tells the size needed, for a buffer that is too small.
HOSTKIT_API BOOL GiveName(std::string_view name, char* pBuffer, DWORD* pLength);

// What an atom is called; empty when it does not say.
HOSTKIT_API std::string NameOf(IAtom* pAtom);
// What it is shown as: its display name where it has one.
HOSTKIT_API std::string ShownNameOf(IAtom* pAtom);

} // namespace hostkit
