#include "Editor/player/Frames.h"

#include "Editor/player/AnimationFrames.h"
#include "Editor/player/PhaseFrames.h"

namespace editor
{

std::unique_ptr<Frames> MakeFrames(IAtom* pAtom, PictureStore& pictures, std::function<void()> arrived)
{
    CMember* const pMember = CMember::Of(pAtom);
    if (auto* const pPhase = dynamic_cast<CPhase*>(pMember))
        return std::make_unique<PhaseFrames>(*pPhase, pictures, std::move(arrived));
    const std::string path = pMember ? pMember->Path() : std::string();
    const int nCount = pictures.FrameCountOf(path);
    if (nCount <= 1 || !pictures.GetReader().Open(path, {1, 1}))
        return nullptr;
    return std::make_unique<AnimationFrames>(pictures.GetReader(), path, nCount, pictures.FullSizeOf(path),
                                             std::move(arrived));
}

} // namespace editor
