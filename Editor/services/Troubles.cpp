#include "Editor/services/Troubles.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

constexpr std::size_t kMostLines = 20; // what a box can show

} // namespace

void Troubles::Add(std::string line)
{
    ++m_nObjects;
    if (!line.empty())
        m_lines.push_back(std::move(line));
}

std::string Troubles::Text() const
{
    if (m_lines.size() < 2)
        return m_lines.empty() ? std::string() : m_lines.front();
    std::string text = std::to_string(m_lines.size()) + " of " + std::to_string(m_nObjects) + " objects\n";
    const std::size_t nShown = std::min(m_lines.size(), kMostLines);
    for (std::size_t i = 0; i < nShown; ++i)
        text += '\n' + m_lines[i];
    if (m_lines.size() > nShown)
        text += "\nand " + std::to_string(m_lines.size() - nShown) + " more";
    return text;
}

} // namespace editor
