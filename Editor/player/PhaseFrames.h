// The frames of a phase.
#pragma once

#include "Editor/model/Phase.h"
#include "Editor/player/FrameWaiter.h"
#include "Editor/player/Frames.h"

namespace editor
{

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
