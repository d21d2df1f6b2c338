#include "HostKit/base/ErrorInfo.h"

namespace hostkit
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

} // namespace hostkit
