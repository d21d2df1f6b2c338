// What moves: pictures in an order, each for its time.
#pragma once

#include "Editor/pictures/PictureStore.h"

#include <functional>
#include <memory>

namespace editor
{

// Frames count from 0. Nothing here waits for a picture: what is not there yet is told of when it comes, to whoever
// made this.
class Frames
{
public:
    Frames() = default;
    virtual ~Frames() = default;
    Frames(const Frames&) = delete;
    Frames& operator=(const Frames&) = delete;

    virtual int GetCount() = 0;               // may change while it is shown
    virtual int DelayOf(int nFrame) = 0;      // milliseconds
    virtual int GetRepeats() = 0;             // how often all are played; 0: without an end
    virtual CSize FullSizeOf(int nFrame) = 0; // in the file; 0 by 0: not known yet
    // The frame as large as the size allows. It is good until the next call.
    virtual PictureStore::Answer Find(int nFrame, CSize size) = 0;
};

// What moves of an atom: a phase's frames, or those of a picture that is known to have several. NULL for all else. The
// store is borrowed; `arrived` is called when a frame has come that was not there when it was asked for.
std::unique_ptr<Frames> MakeFrames(IAtom* pAtom, PictureStore& pictures, std::function<void()> arrived);

} // namespace editor
