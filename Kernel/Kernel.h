// The host's kernel: numbers for interface names, services by name, and objects made by class name.
//
// Every function may be called from any thread. A NULL name counts as the empty one.
#pragma once

#include "Kernel/IKernel.h"
#include "Kernel/ServiceRec.h"

#include <functional>

// Interfaces. The same number for the same name throughout the process, distinct numbers for distinct names:
// 1, 2, 3 and so on in the order in which the names are first asked for, so never STUB_BASE_INTERFACE_ID.
KERNEL_API DWORD INT_GetUniqueInterfaceID(const char* pszName);

// Services. The same record for the same name throughout the process, never NULL; without a provider at first.
KERNEL_API SERVICEREC* SRVN_GetUniqueServiceID(const char* pszName);
// Installs a provider (NULL: none), which must live until another takes its place, and returns the former one.
// Waits until no call of the service is under way; a service procedure must therefore not call it for its own
// service.
KERNEL_API SERVICEPROVIDER* SRVN_InstallProvider(const char* pszName, SERVICEPROVIDER* pProvider);

// The kernel object, with a reference that the caller releases. The object itself lives as long as the process.
KERNEL_API IKernel* KRNL_GetKernel();
// How many references to the kernel object have not been released: a host that checks for leaks compares it.
KERNEL_API int KRNL_CountReferences();

// Makes a new object and returns its base with one reference; NULL when it cannot be made.
using CLASSFACTORY = std::function<CStubBaseInterface*()>;
// Says how objects of that class name are made; an empty factory forgets the class.
KERNEL_API void KRNL_RegisterClass(const char* pszClassName, CLASSFACTORY factory);
