// The editor's error information: one line that names the object and the reason.
#pragma once

#include "Views/host/host.h"

#include <string>

namespace editor
{

class CErrorInfo final : public IMyErrorInfo
{
public:
    [[nodiscard]] static CStubRef<IMyErrorInfo> Make(std::string line);

    // The line of an error that this editor made; empty for NULL and for a foreign one.
    static std::string LineOf(IMyErrorInfo* pError);

    void AddRef() override { ++m_nRefs; }
    void Release() override;
    void GetInterface(DWORD id, void** out) override;

private:
    explicit CErrorInfo(std::string line);
    ~CErrorInfo();

    const std::string m_line;
    int m_nRefs = 1;
};

} // namespace editor
