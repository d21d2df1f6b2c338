#include "HostKit/atoms/HandlerRegistry.h"

#include "Toolkit/window/WindowApi.h"

#include <algorithm>

namespace hostkit
{
namespace
{

bool IsAsking(AEStateOperation operation)
{
    return operation == &IAEStateHandler::PreRenameAtom || operation == &IAEStateHandler::PreSaveAtom ||
           operation == &IAEStateHandler::OnAtomSelecting || operation == &IAEStateHandler::OnAtomDeselecting;
}

} // namespace

class HandlerRegistry::Calling
{
public:
    explicit Calling(HandlerRegistry& registry) : m_registry(registry) { ++m_registry.m_nCalling; }
    ~Calling()
    {
        if (--m_registry.m_nCalling == 0)
            std::erase_if(m_registry.m_registrations, [](const Registration& one) { return !one.pHandler; });
    }
    Calling(const Calling&) = delete;
    Calling& operator=(const Calling&) = delete;

private:
    HandlerRegistry& m_registry;
};

DWORD HandlerRegistry::Register(HWND hWnd, IAEStateHandler* pHandler)
{
    m_registrations.push_back({++m_dwLastCookie, hWnd, pHandler});
    return m_dwLastCookie;
}

void HandlerRegistry::Unregister(DWORD dwCookie)
{
    const Calling calling(*this); // tidies up at its end
    for (Registration& one : m_registrations)
        if (one.dwCookie == dwCookie)
            one.pHandler = nullptr;
}

BOOL HandlerRegistry::Call(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom,
                           IAtomContainer* pContainer)
{
    const Calling calling(*this);
    const bool bRename = operation == &IAEStateHandler::OnAtomRename;
    BOOL bResult = !bRename;
    for (std::size_t i = 0, count = m_registrations.size(); i < count; ++i) {
        IAEStateHandler* const pHandler = m_registrations[i].pHandler;
        if (!pHandler || pHandler == pSender)
            continue;
        const BOOL bAnswer = (pHandler->*operation)(pAtom, pContainer);
        if (bRename && bAnswer)
            return TRUE;
        if (IsAsking(operation) && !bAnswer)
            bResult = FALSE;
    }
    return bResult;
}

bool HandlerRegistry::Contains(IAEStateHandler* pHandler) const
{
    return pHandler && std::any_of(m_registrations.begin(), m_registrations.end(),
                                   [&](const Registration& one) { return one.pHandler == pHandler; });
}

IAEStateHandler* HandlerRegistry::FindByWindow(HWND hWnd, HWND hEnd) const
{
    for (; hWnd && hWnd != hEnd; hWnd = GetParent(hWnd))
        for (const Registration& one : m_registrations)
            if (one.hWnd == hWnd && one.pHandler)
                return one.pHandler;
    return nullptr;
}

} // namespace hostkit
