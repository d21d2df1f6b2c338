// Stands for somebody who is no atom where pictures are wished for.
#pragma once

#include "HostKit/base/Counted.h"
#include "Views/host/host.h"

#include <functional>

namespace editor
{

// Nobody hears of it as of an atom that has changed: it passes on that its picture has come.
class CFrameWaiter final : public hostkit::With<hostkit::Counted, IAtom>
{
public:
    explicit CFrameWaiter(std::function<void()> arrived) : m_arrived(std::move(arrived)) {}

    void Arrived() const
    {
        if (const auto arrived = m_arrived) // which may have it leave
            arrived();
    }
    void Leave() { m_arrived = nullptr; } // whoever waited does not any more

    DWORD GetID() override { return 0; }
    BOOL GetName(char*, DWORD*) override { return FALSE; }
    BOOL GetContainer(void** ppOut, DWORD) override
    {
        if (ppOut)
            *ppOut = nullptr;
        return FALSE;
    }
    BOOL IsModified() override { return FALSE; }

private:
    std::function<void()> m_arrived;
};

} // namespace editor
