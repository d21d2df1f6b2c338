#pragma once

#include "Editor/player/Frames.h"

#include <functional>
#include <memory>

namespace editor
{

// What moves of an atom: a phase's frames, or those of a picture that is known to have several. NULL for all else. The
// store is borrowed; `arrived` is called when a frame has come that was not there when it was asked for.
std::unique_ptr<Frames> MakeFrames(IAtom* pAtom, PictureStore& pictures, std::function<void()> arrived);

} // namespace editor
