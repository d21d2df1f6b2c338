// A service that a function answers.
#pragma once

#include "Kernel/Kernel.h"

#include <functional>

// Installed under its name for as long as it lives, unless it is taken away meanwhile.
class FakeService : public SERVICEPROVIDER
{
public:
    using Answer = std::function<BOOL(void* pBuffer, DWORD dwSize, DWORD dwExtra)>;

    FakeService(const char* pszName, Answer answer)
        : SERVICEPROVIDER{&s_table}, m_pszName(pszName), m_answer(std::move(answer))
    {
        Install();
    }
    ~FakeService() { Uninstall(); }
    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    void Install() { SRVN_InstallProvider(m_pszName, this); }
    void Uninstall() { SRVN_InstallProvider(m_pszName, nullptr); }

private:
    static BOOL Serve(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra)
    {
        return static_cast<FakeService*>(pProvider)->m_answer(pBuffer, dwSize, dwExtra);
    }
    static constexpr SERVICETABLE s_table{&Serve};

    const char* const m_pszName;
    const Answer m_answer;
};
