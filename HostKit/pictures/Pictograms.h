// Pictures for hosts that have no own, drawn at any size from 16 coordinates up, as fine as the screen. Each has a
// transparent ground. Signs on buttons are drawn so that they show on the ground of windows, light or dark; objects are
// the same on both.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/graphics/Surface.h"

namespace hostkit
{

enum class Pictogram
{
    Folder,
    Phase,         // a strip of film
    BrokenPicture, // a picture that cannot be read
    Placeholder,   // a picture that is not read yet
    TreePane,
    IconPane,
    ThumbnailPane,
    Up, // arrows
    Back,
    Forward,
    PathArrow, // between the parts of a path
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Delete,
    Find,
    File, // of no kind that the host knows
    Play, // and what else players have
    Pause,
    StepBack,
    StepForward,
    Slower,
    Faster,
    Loop,
    BackAndForth,
};

HOSTKIT_API toolkit::Surface DrawPictogram(Pictogram which, int extent);

// The same, drawn once for each size on either ground and kept for the life of the process. User-interface thread only.
HOSTKIT_API const toolkit::Surface& GetPictogram(Pictogram which, int extent);

} // namespace hostkit
