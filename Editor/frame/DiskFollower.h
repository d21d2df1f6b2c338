// What other programs do to the library's files, shown.
#pragma once

#include "Editor/content/Navigation.h"
#include "Editor/disk/FolderWatch.h"

namespace editor
{

class DiskFollower
{
public:
    DiskFollower(CAtomEditor& editor, PictureStore& pictures, Navigation& navigation)
        : m_editor(editor), m_pictures(pictures), m_navigation(navigation)
    {} // all borrowed

    // What has become of members that somebody knows. Nobody has been told.
    struct FoundIn
    {
        CStubRef<CFolder> pFolder;
        MemberNews news;
        std::vector<CStubRef<CMember>> links; // elsewhere, to what is in it
    };
    using Found = std::vector<FoundIn>;
    Found Look(const std::vector<FolderNews>& news);
    static bool MovesRows(const Found& found); // and not only what rows show
    // Every view hears of it as of what the user does. Where the folder that was shown has gone the innermost one that
    // is still there is shown, and the answer says so; else it is empty.
    std::string Tell(const Found& found);
    // Of what is shown, and what it is in, those that the system does not tell of: they have to be looked at.
    std::vector<FolderNews> Unfollowed() const;

private:
    CAtomEditor& m_editor;
    PictureStore& m_pictures;
    Navigation& m_navigation;
};

} // namespace editor
