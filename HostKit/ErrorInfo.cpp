#include "HostKit/ErrorInfo.h"

#include "HostKit/LiveObjects.h"

namespace editor
{

CStubRef<IMyErrorInfo> CErrorInfo::Make(std::string line)
{
    return CStubRef<IMyErrorInfo>::Adopt(new CErrorInfo(std::move(line)));
}

std::string CErrorInfo::LineOf(IMyErrorInfo* pError)
{
    const auto* const pOwn = dynamic_cast<CErrorInfo*>(pError);
    return pOwn ? pOwn->m_line : std::string();
}

CErrorInfo::CErrorInfo(std::string line) : m_line(std::move(line))
{
    ++g_nLiveObjects;
}

CErrorInfo::~CErrorInfo()
{
    --g_nLiveObjects;
}

void CErrorInfo::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void CErrorInfo::GetInterface(DWORD id, void** out)
{
    *out = id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this)
           : id == IID_IMyErrorInfo     ? static_cast<void*>(static_cast<IMyErrorInfo*>(this))
                                        : nullptr;
    if (*out)
        AddRef();
}

} // namespace editor
