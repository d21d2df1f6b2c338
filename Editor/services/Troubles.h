// What went wrong with which of several objects.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace editor
{

class Troubles
{
public:
    // One object more has had its turn; its line, which names it, is empty when all went well.
    void Add(std::string line);

    // Empty without any; of one object its line; else of how many of how many, and a line for each. Of very many the
    // first ones.
    std::string Text() const;

private:
    std::size_t m_nObjects = 0;
    std::vector<std::string> m_lines;
};

} // namespace editor
