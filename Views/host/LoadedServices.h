// Inside the library: service records fetched when it is loaded.
#pragma once

#include "Kernel/ServiceRec.h"

// "ConstructMemoryStream". 4 bytes out (a pointer's size): a new IMemoryStream, with a reference for the caller.
extern SERVICEREC* const g_pMemoryStreamService;
