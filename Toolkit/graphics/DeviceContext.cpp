#include "Toolkit/graphics/DeviceContext.h"

#include <utility>

toolkit::DeviceContext::DeviceContext(Surface& target, CPoint origin, Region clip) : m_pTarget(&target)
{
    m_state.clip = std::move(clip);
    m_state.clip.Intersect({{}, target.Size()});
    m_state.origin = origin;
}

void toolkit::DeviceContext::Select(HBITMAP hBitmap, Surface& target)
{
    m_state.clip = Region({{}, target.Size()});
    m_hSelected = hBitmap;
    m_pTarget = &target;
}

int toolkit::DeviceContext::Save()
{
    m_saved.push_back(m_state);
    return static_cast<int>(m_saved.size());
}

bool toolkit::DeviceContext::Restore(int depth)
{
    const int saved = static_cast<int>(m_saved.size());
    const int wanted = depth == -1 ? saved : depth;
    if (wanted < 1 || wanted > saved)
        return false;
    m_state = std::move(m_saved[static_cast<std::size_t>(wanted) - 1]);
    m_saved.resize(static_cast<std::size_t>(wanted) - 1);
    return true;
}
