#include "Editor/commands/ViewCommands.h"

#include "Editor/commands/CommandDesk.h"
#include "Toolkit/desktop/MenuItems.h"
#include "Toolkit/menu/MessageBox.h"

namespace editor
{
namespace
{

constexpr const char* kAbout = "Views " EDITOR_VERSION "\n\n"
                               "An editor for folders of pictures: characters, their phases and frames.\n"
                               "What it shows are the files themselves. Nothing is imported.";

std::vector<CKeysSheet::Group> KeyGroups()
{
    std::vector<CKeysSheet::Group> groups;
    for (const std::string& title : CommandDesk::MenuTitles())
        groups.push_back({toolkit::PlainMenuText(title), {}});
    for (const CommandEntry& command : AllCommands())
        if (command.pszText && command.key.vkey != 0)
            groups[static_cast<std::size_t>(command.menu)].lines.push_back(
                {command.key.Text(), toolkit::PlainMenuText(command.pszText)});
    groups.push_back({"Objects", {}});
    for (const KeyUse& use : KeysOfViews())
        groups.back().lines.push_back({use.pszKey, use.pszWhat});
    return groups;
}

} // namespace

void ViewCommands::Describe(CommandState& state) const
{
    state.icons = m_parts.content.GetKind() == ListKind::Icons;
    state.thumbnails = !state.icons;
    state.foldersFirst = m_bFoldersFirst;
    state.filter = m_parts.filter.IsOn();
    state.pixels = m_parts.content.ArePixelsShown();
    if (m_parts.content.IsPictureShown())
        state.list = "a picture is shown";
    else
        state.picture = "no picture is shown";
    const CPlayerView& player = m_parts.content.GetPlayer();
    state.play = player.HasFrames() ? "" : "no phase is shown, and no picture that moves";
    state.playing = player.GetPlayback().IsPlaying();
    state.loop = player.GetPlayback().IsForEver();
    state.backAndForth = player.GetPlayback().TurnsBack();
    if (!m_parts.properties.HasPhases())
        state.timing = "no phase is selected";
}

// What is to be larger than icons are thumbnails.
void ViewCommands::Step(int nSteps)
{
    Content& content = m_parts.content;
    if (content.IsPictureShown())
        return content.GetZoomed().ZoomBy(nSteps);
    if (content.GetKind() == ListKind::Thumbnails)
        content.StepThumbnailExtent(nSteps);
    else if (nSteps > 0)
        ShowThumbnails();
}

void ViewCommands::ShowUsualSize()
{
    if (m_parts.content.IsPictureShown())
        m_parts.content.GetZoomed().Fit();
    else
        m_parts.content.SetThumbnailExtent(Content::kUsualThumbnail);
}

void ViewCommands::SetFoldersFirst(bool bFirst)
{
    m_bFoldersFirst = bFirst;
    const UINT nOrder = bFirst ? MOF_NATURAL | MOF_CONTAINERSFIRST : MOF_NATURAL;
    m_parts.content.SetOrder(nOrder);
    m_parts.tree.SetMemberOrder(nOrder);
}

// Where the filter is on but the keys are elsewhere, they go to it.
void ViewCommands::ToggleFilter()
{
    if (m_parts.filter.IsOn() && ::GetFocus() == m_parts.filter.GetField().m_hWnd)
        m_parts.filter.End();
    else
        m_parts.filter.Begin();
}

void ViewCommands::BeginSearch()
{
    m_parts.search.Begin(m_parts.filter.IsOn() ? m_parts.filter.GetText() : std::string());
}

void ViewCommands::FocusNextPane()
{
    CRect tree;
    m_parts.treePane.GetClientRect(&tree);
    const bool bTree = ::GetFocus() == m_parts.tree.m_hWnd;
    if (!bTree && m_parts.content.FocusPlayer())
        return;
    if (bTree || tree.IsRectEmpty())
        m_parts.content.TakeFocus();
    else
        m_parts.tree.SetFocus();
}

void ViewCommands::LeaveFields()
{
    if (m_parts.properties.HasFocus())
        m_parts.content.TakeFocus();
}

void ViewCommands::ShowKeys()
{
    if (m_parts.keys.IsWindowVisible())
        return m_parts.keys.Leave();
    m_parts.keys.Show(KeyGroups());
}

void ViewCommands::ShowAbout()
{
    AfxMessageBox(kAbout, MB_OK | MB_ICONINFORMATION);
}

} // namespace editor
