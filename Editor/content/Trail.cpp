#include "Editor/content/Trail.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr std::size_t kMost = 200;

} // namespace

void Trail::Visit(const std::string& path)
{
    if (m_at < m_paths.size() && m_paths[m_at] == path)
        return;
    m_paths.resize(std::min(m_paths.size(), m_at + 1));
    if (m_paths.size() == kMost)
        m_paths.erase(m_paths.begin());
    m_paths.push_back(path);
    m_at = m_paths.size() - 1;
}

bool Trail::CanGo(int nStep) const
{
    return nStep < 0 ? m_at > 0 : m_at + 1 < m_paths.size();
}

bool Trail::Go(int nStep, const std::function<bool(const std::string& path)>& show)
{
    while (CanGo(nStep)) {
        m_at += static_cast<std::size_t>(nStep);
        const std::string path = m_paths[m_at];
        if (show(path))
            return true;
        m_paths.erase(m_paths.begin() + static_cast<std::ptrdiff_t>(m_at));
        m_at -= nStep > 0 ? 1 : 0;
    }
    return false;
}

} // namespace editor
