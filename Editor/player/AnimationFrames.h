// The frames of a picture file that moves.
#pragma once

#include "Editor/player/Frames.h"

#include <memory>
#include <string>

namespace editor
{

// A thread of its own reads them in their order, a few ahead of the one that was asked for last, and keeps those that
// are in no one's way: as many as fit into kMostBytes. What has gone is read again from the beginning of the file.
class AnimationFrames final : public Frames
{
public:
    static constexpr std::size_t kMostBytes = 48 << 20;

    // The reader is borrowed, for as long as PictureReader tells. `arrived` is called from the queue of messages.
    AnimationFrames(const PictureReader& reader, std::string path, int nCount, CSize fullSize,
                    std::function<void()> arrived);
    ~AnimationFrames() override; // waits for nothing

    int GetCount() override;
    int DelayOf(int nFrame) override;
    int GetRepeats() override { return 0; }
    CSize FullSizeOf(int) override { return m_fullSize; }
    PictureStore::Answer Find(int nFrame, CSize size) override;

private:
    struct Shared;
    static void Work(const std::shared_ptr<Shared>& pShared);

    const CSize m_fullSize;
    const std::shared_ptr<Shared> m_pShared;
    std::shared_ptr<const toolkit::Surface> m_pFound; // which was handed out last
};

} // namespace editor
