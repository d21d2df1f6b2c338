// Inside the library: service records fetched when it is loaded.
#pragma once

#include "Kernel/ServiceRec.h"

// A pointer's size out: a new IMemoryStream, with a reference for the caller.
extern SERVICEREC* const g_pMemoryStreamService;
