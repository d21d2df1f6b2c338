#include "Editor/commands/CommandDesk.h"

#include "Editor/commands/FrameCommands.h"
#include "Editor/commands/PlaceCommands.h"
#include "Editor/commands/ViewCommands.h"
#include "Editor/disk/FileText.h"

namespace editor
{
namespace
{

using Menu = CommandEntry::Menu;
using Context = CommandEntry::Context;

constexpr int kToolIcon = 16;

std::string NameOf(const CommandEntry& command, const CommandState& state)
{
    const CommandEntry* const pNamed = FindCommand(command.nID);
    return toolkit::PlainMenuText(MenuText(*pNamed, state));
}

// "Undo rename of "a.png" (Ctrl+Z)", and why it cannot be done.
std::string TipOf(const CommandEntry& command, const CommandState& state)
{
    const std::string& why = state.*command.pWhyNot;
    return NameOf(command, state) + " (" + command.key.Text() + ')' + (why.empty() ? "" : ": " + why);
}

CommandDesk::Row RowOf(Menu menu)
{
    using Row = CommandDesk::Row;
    return menu == Menu::Go ? Row::Ways : menu == Menu::Play ? Row::Player : Row::Objects;
}

hostkit::Pictogram IconOf(const CommandEntry& command, const CommandState& state)
{
    return command.nID == ID_PLAY && state.playing ? hostkit::Pictogram::Pause : *command.tool;
}

void AppendRecent(CMenu& menu, const char* pszText, const std::vector<std::string>& folders)
{
    CMenu below;
    below.CreatePopupMenu();
    UINT nID = ID_RECENT_FIRST;
    for (const std::string& folder : folders)
        below.AppendMenu(MF_STRING, nID++, WithoutMarks(ToShown(folder)).c_str());
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), pszText);
}

void AppendCommand(CMenu& menu, const CommandEntry& command, const CommandState& state)
{
    const std::string& why = state.*command.pWhyNot;
    const UINT nOn = command.pOn && state.*command.pOn ? MF_CHECKED : MF_UNCHECKED;
    const std::string key = command.key.Text();
    const std::string text = MenuText(command, state) + (key.empty() ? "" : '\t' + key);
    menu.AppendMenu(MF_STRING | nOn | (why.empty() ? MF_ENABLED : MF_GRAYED), command.nID, text.c_str());
    menu.SetLastHint(why.c_str());
}

} // namespace

CommandState CommandDesk::GetState() const
{
    CommandState state;
    m_targets.objects.Describe(state);
    m_targets.places.Describe(state);
    m_targets.views.Describe(state);
    return state;
}

void CommandDesk::Run(const CommandEntry& command)
{
    const CommandState state = GetState();
    if (const std::string& why = state.*command.pWhyNot; !why.empty())
        m_say(NameOf(command, state) + ": " + why);
    else
        command.run(m_targets);
}

bool CommandDesk::Run(UINT nID)
{
    if (nID >= ID_RECENT_FIRST && nID <= ID_RECENT_LAST)
        return m_targets.places.OpenRecent(nID - ID_RECENT_FIRST), true;
    const CommandEntry* const pCommand = FindCommand(nID);
    if (pCommand)
        Run(*pCommand);
    return pCommand != nullptr;
}

template <class IsIn, class IsSection>
std::unique_ptr<CMenu> CommandDesk::MakeMenuOf(IsIn isIn, IsSection isSection) const
{
    auto pMenu = std::make_unique<CMenu>();
    if (!pMenu->CreatePopupMenu())
        return nullptr;
    const CommandState state = GetState();
    bool bFirst = true;
    for (const CommandEntry& command : AllCommands()) {
        if (!isIn(command))
            continue;
        if (isSection(command) && !bFirst)
            pMenu->AppendMenu(MF_SEPARATOR);
        if (command.nID == ID_RECENT && state.recent.empty())
            AppendRecent(*pMenu, command.pszText, m_targets.places.Recent());
        else
            AppendCommand(*pMenu, command, state);
        bFirst = false;
    }
    return pMenu;
}

std::unique_ptr<CMenu> CommandDesk::MakeContextMenu() const
{
    return MakeMenuOf([](const CommandEntry& command) { return command.context != Context::No; },
                      [](const CommandEntry& command) { return command.context == Context::Section; });
}

std::vector<std::string> CommandDesk::MenuTitles()
{
    return {"&File", "&Edit", "&View", "&Play", "&Go", "&Help"};
}

std::unique_ptr<CMenu> CommandDesk::MakeMenu(int nMenu) const
{
    return MakeMenuOf([=](const CommandEntry& command) { return command.menu == static_cast<Menu>(nMenu); },
                      [](const CommandEntry& command) { return command.bSection; });
}

std::vector<Tool> CommandDesk::Tools(Row row) const
{
    const CommandState state = GetState();
    std::vector<Tool> tools;
    for (const CommandEntry& command : AllCommands())
        if (command.tool && RowOf(command.menu) == row)
            tools.push_back({.command = command.nID,
                             .pIcon = &hostkit::GetPictogram(IconOf(command, state), kToolIcon),
                             .tip = TipOf(command, state),
                             .isEnabled = (state.*command.pWhyNot).empty(),
                             .isDown = command.nID != ID_PLAY && command.pOn && state.*command.pOn,
                             .isFirst = command.bSection});
    return tools;
}

} // namespace editor
