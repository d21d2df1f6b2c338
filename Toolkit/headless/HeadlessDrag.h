// The headless desktop's drag, whose user a test plays. Internal to it.
#pragma once

#include "Toolkit/exchange/DragTracker.h"
#include "Toolkit/headless/HeadlessDesktop.h"

namespace toolkit
{

struct HeadlessDrag
{
    HeadlessDrag(std::shared_ptr<OfferedData> dragged, DROPEFFECT effects, bool ours, DWORD pressed)
        : data(std::move(dragged)), tracker(data, effects), allowed(effects), bOurs(ours), dwButtons(pressed)
    {}

    const std::shared_ptr<OfferedData> data;
    DragTracker tracker;
    const DROPEFFECT allowed;
    const bool bOurs;      // begun by this program
    const DWORD dwButtons; // MK_*: held when it began, and all the while
    bool bOver = false;    // dropped or cancelled
};

} // namespace toolkit
