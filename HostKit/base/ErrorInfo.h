// The kit's error information: one line that names the object and the reason.
#pragma once

#include "HostKit/base/Counted.h"
#include "Views/host/IMyErrorInfo.h"

#include <string>

namespace hostkit
{

class HOSTKIT_API CErrorInfo final : public With<Counted, IMyErrorInfo>
{
public:
    [[nodiscard]] static CStubRef<IMyErrorInfo> Make(std::string line)
    {
        return CStubRef<IMyErrorInfo>::Adopt(new CErrorInfo(std::move(line)));
    }

    // The line of an error that was made here; empty for NULL and for a foreign one.
    static std::string LineOf(IMyErrorInfo* pError)
    {
        const auto* const pOwn = dynamic_cast<CErrorInfo*>(pError);
        return pOwn ? pOwn->m_line : std::string();
    }

private:
    explicit CErrorInfo(std::string line) : m_line(std::move(line)) {}

    const std::string m_line;
};

} // namespace hostkit
