// Where the user has been.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace editor
{

class Trail
{
public:
    void Visit(const std::string& path); // what lay forward is forgotten; nothing where one is already
    bool CanGo(int nStep) const;         // -1: back, 1: forward
    // As far as `show` can: where it answers false the place is gone, and forgotten. Was one shown?
    bool Go(int nStep, const std::function<bool(const std::string& path)>& show);

private:
    std::vector<std::string> m_paths;
    std::size_t m_at = 0;
};

} // namespace editor
