// The drag of a data source.
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/exchange/DataCache.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/message/Messages.h"
#include "Toolkit/message/Queue.h"

namespace
{
constexpr DWORD kButtons = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;
bool s_bDragging = false;

class Dragging
{
public:
    Dragging() { s_bDragging = true; }
    ~Dragging()
    {
        s_bDragging = false;
        toolkit::SetMouseKeyFlags(toolkit::MouseKeyFlags() & ~kButtons); // the desktop has kept the release to itself
    }
    Dragging(const Dragging&) = delete;
    Dragging& operator=(const Dragging&) = delete;
};
} // namespace

DROPEFFECT COleDataSource::DoDragDrop(DWORD dwEffects)
{
    if (s_bDragging || !(toolkit::MouseKeyFlags() & kButtons))
        return DROPEFFECT_NONE;
    const std::shared_ptr<toolkit::DataCache> data = m_cache; // outlives this object
    const Dragging dragging;
    ReleaseCapture();
    toolkit::UpdateWake();
    return toolkit::CurrentDesktop().RunDrag(data, dwEffects) & dwEffects;
}
