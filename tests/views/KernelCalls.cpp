#include "tests/views/KernelCalls.h"

#include "Kernel/Kernel.h"

#include <dlfcn.h>

namespace
{

template <class Function>
Function* Next(const char* pszSymbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, pszSymbol));
}

const std::vector<std::string> s_atLoad = KernelCalls(); // this program's own globals are made after the libraries'

} // namespace

const std::vector<std::string>& KernelCallsAtLoad()
{
    return s_atLoad;
}

std::vector<std::string>& KernelCalls()
{
    static std::vector<std::string> s_calls;
    return s_calls;
}

DWORD INT_GetUniqueInterfaceID(const char* pszName)
{
    KernelCalls().push_back(std::string("id ") + pszName);
    return Next<DWORD(const char*)>("_Z24INT_GetUniqueInterfaceIDPKc")(pszName);
}

SERVICEREC* SRVN_GetUniqueServiceID(const char* pszName)
{
    KernelCalls().push_back(std::string("service ") + pszName);
    return Next<SERVICEREC*(const char*)>("_Z23SRVN_GetUniqueServiceIDPKc")(pszName);
}

void CSyncWrRd::WaitForRead()
{
    KernelCalls().push_back("wait");
    Next<void(CSyncWrRd*)>("_ZN9CSyncWrRd11WaitForReadEv")(this);
}

void CSyncWrRd::DoneReading()
{
    KernelCalls().push_back("done");
    Next<void(CSyncWrRd*)>("_ZN9CSyncWrRd11DoneReadingEv")(this);
}
