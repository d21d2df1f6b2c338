// Inside the library: transfer files that this process still needs.
#pragma once

#include "Toolkit/base/GlobalMemory.h"

namespace views
{

// A held file bears a lock of the system for reading (F_OFD_SETLK), which ends with the process, however that ends: a
// transfer file without one has no owner any more. It is no obstacle to those who open the file, unshared or not. Where
// the system has no such locks, files are not held.
void HoldFile(HGLOBAL hPath, const char* pszPath); // raises CMemoryException
void LetGoOfFile(HGLOBAL hPath);                   // nothing happens for one that is not held

} // namespace views
