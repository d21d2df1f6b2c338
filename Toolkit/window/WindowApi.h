// Windows by handle: the functions under their standard names.
//
// User-interface thread only. A NULL or stale handle is refused: FALSE, NULL or 0, and nothing happens.
#pragma once

#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/DoubleClick.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/handle/HitTest.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/message/Timers.h"
#include "Toolkit/paint/Painting.h"
#include "Toolkit/paint/ScrollWindow.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/paint/WindowDC.h"
#include "Toolkit/scroll/ScrollInfo.h"
#include "Toolkit/window/DefWindowProc.h"
#include "Toolkit/window/WindowCreation.h"
#include "Toolkit/window/WindowDestruction.h"
#include "Toolkit/window/WindowSettings.h"
