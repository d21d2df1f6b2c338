// Objects looked for by name in what is shown and everything below it.
#pragma once

#include "Editor/commands/FrameCommands.h"
#include "Editor/content/Navigation.h"
#include "Editor/widgets/SearchSheet.h"
#include "Editor/work/NameSearch.h"

namespace editor
{

// What is found comes while it is looked for, and looking ends with Escape, with another text, and with whatever is
// shown next.
class Search
{
public:
    struct Parts // all borrowed but the function
    {
        Navigation& navigation;
        FrameCommands& commands;
        Content& content;
        std::function<void(std::string line)> say;
    };
    explicit Search(Parts parts);

    bool Create(CWnd* pFrame) { return m_sheet.Create(pFrame); }
    void Begin(const std::string& text);
    void End();    // and the views have the keys
    void Forget(); // something else is shown
    bool IsUnderWay() const { return m_search.IsUnderWay(); }
    CSearchSheet& GetSheet() { return m_sheet; }

private:
    void Look(const std::string& text);
    void Take(const std::vector<NameSearch::Found>& found, bool isOver);
    void GoTo(std::size_t nFound);

    const Parts m_parts;
    CSearchSheet m_sheet;
    std::string m_top;                      // where it began
    std::vector<NameSearch::Found> m_found; // a line each
    NameSearch m_search;
};

} // namespace editor
