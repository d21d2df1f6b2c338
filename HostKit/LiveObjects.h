#pragma once

namespace editor
{

// How many of the model's objects are alive; tests compare it. User-interface thread only.
inline int g_nLiveObjects = 0;

} // namespace editor
