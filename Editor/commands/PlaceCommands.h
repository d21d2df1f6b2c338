// Where the user goes, and what is done with a place as such.
#pragma once

#include "Editor/commands/CommandTable.h"
#include "Editor/content/Navigation.h"
#include "Editor/widgets/PathBar.h"

namespace editor
{

class PlaceCommands
{
public:
    // What is done for the frame outside of it: empty, or the reason why it was not done.
    struct Outside
    {
        std::function<std::string(const std::string& path)> openFolder; // as the library, in this window
        std::function<std::string(const std::string& path)> openWindow; // on that folder; may be empty
        std::function<std::vector<std::string>()> askRecent;            // folders, the last one first; may be empty
    };
    struct Parts // all borrowed but the functions
    {
        CAtomEditor& editor;
        Navigation& navigation;
        CPathBar& pathBar;
        Outside outside;
        std::function<void(std::string line)> say; // in the status bar
    };
    explicit PlaceCommands(Parts parts) : m_parts(std::move(parts)) {}

    void Describe(CommandState& state) const;

    void OpenFolder(); // asks which
    void OpenLibrary(const std::string& path) { Say(m_parts.outside.openFolder(path)); }
    std::vector<std::string> Recent() const; // but for the one that is shown
    void OpenRecent(std::size_t nFolder);
    void OpenWindow(); // on the selected folder, else on the one that is shown
    void ShowOutside();
    void CopyPath(); // of all that is selected, a line each; else of what is shown
    void GoBack() { Go(-1); }
    void GoForward() { Go(1); }
    void GoUp() { m_parts.navigation.GoUp(); }
    void TypePath();

    // Shows what lies there, in another library when need be. A path that was typed may begin at home ("~") or at what
    // is shown. Empty, or the reason, which is said, too.
    std::string ShowTyped(const std::string& path) { return Say(ShowPath(Absolute(path))); }

private:
    std::string ShowPath(const std::string& path); // absolute
    std::string ShowOtherLibrary(const std::string& path);
    std::string Absolute(const std::string& typed) const;
    std::vector<std::string> Paths() const;
    std::string Say(std::string reason) const;
    void Go(int nStep);

    const Parts m_parts;
};

} // namespace editor
