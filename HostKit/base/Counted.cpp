#include "HostKit/base/Counted.h"

namespace hostkit
{
namespace
{

int g_nAlive = 0;

} // namespace

Counted::Counted()
{
    ++g_nAlive;
}

Counted::~Counted()
{
    --g_nAlive;
}

int Counted::CountAlive()
{
    return g_nAlive;
}

void Counted::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void Counted::GetInterface(DWORD id, void** out)
{
    *out = FindInterface(id);
    if (*out)
        AddRef();
}

void* Counted::FindInterface(DWORD id)
{
    return id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
}

} // namespace hostkit
