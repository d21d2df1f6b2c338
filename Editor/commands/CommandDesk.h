// Where commands are given: by keys, menus and tools.
#pragma once

#include "Editor/commands/CommandTable.h"
#include "Editor/widgets/ToolBar.h"
#include "Toolkit/menu/Menu.h"

#include <functional>
#include <memory>

namespace editor
{

// Whoever asks for what cannot be done is told why.
class CommandDesk
{
public:
    CommandDesk(CommandTargets targets, std::function<void(std::string line)> say)
        : m_targets(targets), m_say(std::move(say))
    {}

    CommandState GetState() const;
    void Run(const CommandEntry& command); // the desk may be gone afterwards
    bool Run(UINT nID);                    // false where there is no such command

    // NULL without memory.
    std::unique_ptr<CMenu> MakeContextMenu() const;
    static std::vector<std::string> MenuTitles(); // of the bar
    std::unique_ptr<CMenu> MakeMenu(int nMenu) const;

    enum class Row // of tools
    {
        Ways,    // at the left of the path
        Objects, // at its right
        Player   // below what is played
    };
    std::vector<Tool> Tools(Row row) const;

private:
    template <class IsIn, class IsSection>
    std::unique_ptr<CMenu> MakeMenuOf(IsIn isIn, IsSection isSection) const;

    const CommandTargets m_targets;
    const std::function<void(std::string)> m_say;
};

} // namespace editor
