#include "Editor/commands/PlaceCommands.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/FileText.h"
#include "Editor/services/ActiveMembers.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/exchange/ClipboardText.h"

#include <cstdlib>
#include <filesystem>

namespace editor
{
namespace
{

std::string Home()
{
    const char* const pszHome = std::getenv("HOME");
    return pszHome ? pszHome : "";
}

} // namespace

void PlaceCommands::Describe(CommandState& state) const
{
    const Navigation& navigation = m_parts.navigation;
    if (!navigation.Shown() || !navigation.Shown()->Container())
        state.up = "nothing is above the library";
    if (!navigation.CanGo(-1))
        state.back = "nothing was shown before";
    if (!navigation.CanGo(1))
        state.forward = "nothing was left by going back";
    if (Recent().empty())
        state.recent = "no other folder has been open";
    if (!m_parts.outside.openWindow)
        state.outside = "there is no desktop for another window";
}

void PlaceCommands::OpenFolder()
{
    const CLibrary* const pLibrary = m_parts.navigation.Library();
    const HWND hOwner = m_parts.editor.GetMainWindow();
    const std::optional<std::string> path =
        toolkit::CurrentDesktop().AskFolder(hOwner, "Open a folder of pictures", pLibrary ? pLibrary->Path() : Home());
    if (path && IsWindow(hOwner))
        OpenLibrary(*path);
}

std::vector<std::string> PlaceCommands::Recent() const
{
    std::vector<std::string> recent =
        m_parts.outside.askRecent ? m_parts.outside.askRecent() : std::vector<std::string>();
    if (const CLibrary* const pLibrary = m_parts.navigation.Library())
        std::erase(recent, pLibrary->Path());
    return recent;
}

void PlaceCommands::OpenRecent(std::size_t nFolder)
{
    const std::vector<std::string> recent = Recent();
    if (nFolder < recent.size())
        OpenLibrary(recent[nFolder]);
}

void PlaceCommands::OpenWindow()
{
    const std::vector<std::string> paths = Paths();
    const bool bFolder = paths.size() == 1 && IsFolder(paths.front());
    const CContainer* const pShown = m_parts.navigation.ShownContainer();
    Say(m_parts.outside.openWindow(bFolder || !pShown ? paths.front() : pShown->Path()));
}

void PlaceCommands::ShowOutside()
{
    if (const std::vector<std::string> paths = Paths(); !paths.empty())
        Say(toolkit::CurrentDesktop().ShowOutside(paths.front()));
}

void PlaceCommands::CopyPath()
{
    std::string text;
    const std::vector<std::string> paths = Paths();
    for (const std::string& path : paths)
        text += (text.empty() ? "" : "\n") + path;
    toolkit::PutClipboardText(text);
    Say(paths.size() == 1 ? "Copied: " + ToShown(text) : "Copied " + std::to_string(paths.size()) + " paths");
}

void PlaceCommands::TypePath()
{
    const CMember* const pShown = m_parts.navigation.Shown();
    m_parts.pathBar.BeginTyping(pShown ? pShown->Path() : std::string());
}

void PlaceCommands::Go(int nStep)
{
    m_parts.navigation.Go(nStep, [this](const std::string& path) { return ShowPath(path).empty(); });
}

std::string PlaceCommands::Absolute(const std::string& typed) const
{
    const CContainer* const pShown = m_parts.navigation.ShownContainer();
    std::filesystem::path path = typed;
    if (typed == "~" || typed.starts_with("~/"))
        path = Home() + typed.substr(1);
    else if (path.is_relative() && pShown)
        path = std::filesystem::path(pShown->Path()) / path;
    std::string clean = path.lexically_normal().string();
    while (clean.size() > 1 && clean.ends_with('/'))
        clean.pop_back();
    return clean;
}

std::string PlaceCommands::ShowPath(const std::string& path)
{
    CLibrary* const pLibrary = m_parts.navigation.Library();
    if (!pLibrary)
        return path + ": no library is open";
    const CStubRef<CMember> pMember =
        path == pLibrary->Path() ? CStubRef<CMember>::Share(pLibrary) : pLibrary->Find(path);
    if (!pMember)
        return ShowOtherLibrary(path);
    m_parts.navigation.GoTo(pMember.Get());
    return {};
}

// Of a file the folder is opened.
std::string PlaceCommands::ShowOtherLibrary(const std::string& path)
{
    if (IsFolder(path))
        return m_parts.outside.openFolder(path);
    std::error_code failure;
    if (!std::filesystem::exists(path, failure))
        return ToShown(path) + ": no such file or folder";
    const std::string folder = std::filesystem::path(path).parent_path().string();
    if (folder == m_parts.navigation.Library()->Path())
        return ToShown(path) + ": not a file that the library shows";
    if (std::string reason = m_parts.outside.openFolder(folder); !reason.empty())
        return reason;
    const CStubRef<CMember> pMember = m_parts.navigation.Library()->Find(path);
    if (!pMember)
        return ToShown(path) + ": not a file that the library shows";
    m_parts.navigation.GoTo(pMember.Get());
    return {};
}

std::vector<std::string> PlaceCommands::Paths() const
{
    std::vector<std::string> paths;
    const ActiveMembers members = GetActiveMembers(m_parts.editor);
    for (const CMember* const pMember : OwnOf<CMember>(members))
        paths.push_back(pMember->Path());
    const CMember* const pShown = m_parts.navigation.Shown();
    if (paths.empty() && pShown)
        paths.push_back(pShown->Path());
    return paths;
}

std::string PlaceCommands::Say(std::string reason) const
{
    if (!reason.empty())
        m_parts.say(reason);
    return reason;
}

} // namespace editor
