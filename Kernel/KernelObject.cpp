#include "Kernel/Kernel.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace
{

struct ReleaseReference
{
    void operator()(CStubBaseInterface* pObject) const { pObject->Release(); }
};
using ObjectHolder = std::unique_ptr<CStubBaseInterface, ReleaseReference>;

class CKernelObject final : public IKernel
{
public:
    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    BOOL CreateObject(const char* pszClassName, void** ppOut, DWORD dwInterfaceId) override;

    int CountReferences() const { return m_nReferences; }
    void RegisterClass(const char* pszClassName, CLASSFACTORY factory);

private:
    CLASSFACTORY FindFactory(std::string_view className);

    std::atomic<int> m_nReferences = 0;
    std::mutex m_mutex; // of m_factories
    std::map<std::string, CLASSFACTORY, std::less<>> m_factories;
};

CKernelObject& Kernel()
{
    static CKernelObject s_kernel;
    return s_kernel;
}

void CKernelObject::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id != STUB_BASE_INTERFACE_ID)
        return;
    *out = static_cast<CStubBaseInterface*>(this);
    AddRef();
}

// The factory runs without the lock: making an object may need other objects.
BOOL CKernelObject::CreateObject(const char* pszClassName, void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    const CLASSFACTORY factory = FindFactory(pszClassName ? pszClassName : "");
    const ObjectHolder pObject(factory ? factory() : nullptr);
    if (pObject)
        pObject->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

void CKernelObject::RegisterClass(const char* pszClassName, CLASSFACTORY factory)
{
    const std::scoped_lock lock(m_mutex);
    m_factories.insert_or_assign(pszClassName ? pszClassName : "", std::move(factory));
}

CLASSFACTORY CKernelObject::FindFactory(std::string_view className)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_factories.find(className);
    return found == m_factories.end() ? nullptr : found->second;
}

} // namespace

IKernel* KRNL_GetKernel()
{
    CKernelObject& kernel = Kernel();
    kernel.AddRef();
    return &kernel;
}

int KRNL_CountReferences()
{
    return Kernel().CountReferences();
}

void KRNL_RegisterClass(const char* pszClassName, CLASSFACTORY factory)
{
    Kernel().RegisterClass(pszClassName, std::move(factory));
}
