// The frames of a phase.
#pragma once

#include "Editor/model/Phase.h"
#include "Editor/player/Frames.h"

namespace editor
{

// Stands for somebody who is no atom where pictures are wished for. Nobody hears of it as of an atom that has changed:
// it passes on that its picture has come.
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

// As the phase is now, whoever changes it meanwhile. Only pictures that are asked for are read, and the store keeps
// them within its bounds: a phase of any length costs what is shown of it.
class PhaseFrames final : public Frames
{
public:
    // The store is borrowed. `arrived` is called when a picture has come.
    PhaseFrames(CPhase& phase, PictureStore& pictures, std::function<void()> arrived)
        : m_pPhase(CStubRef<CPhase>::Share(&phase)),
          m_pictures(pictures),
          m_pWaiter(CStubRef<CFrameWaiter>::Adopt(new CFrameWaiter(std::move(arrived))))
    {}
    ~PhaseFrames() override { m_pWaiter->Leave(); }

    int GetCount() override { return static_cast<int>(m_pPhase->GetCount()); }
    int DelayOf(int) override { return m_pPhase->GetTiming().delay; }
    int GetRepeats() override { return m_pPhase->GetTiming().repeat; }
    CSize FullSizeOf(int nFrame) override
    {
        return m_pictures.FullSizeOf(m_pPhase->PathOfFrame(static_cast<UINT>(nFrame)));
    }
    PictureStore::Answer Find(int nFrame, CSize size) override
    {
        const std::string path = m_pPhase->PathOfFrame(static_cast<UINT>(nFrame));
        return path.empty() ? PictureStore::Answer{nullptr, true} : m_pictures.Find(path, size, m_pWaiter.Get());
    }

private:
    const CStubRef<CPhase> m_pPhase;
    PictureStore& m_pictures;
    const CStubRef<CFrameWaiter> m_pWaiter;
};

} // namespace editor
