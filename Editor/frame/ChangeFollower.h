// What is shown, selected or remembered goes with the objects: when they get other names, and when other programs have
// been at work.
#pragma once

#include "Editor/commands/FrameCommands.h"
#include "Editor/disk/FolderWatch.h"

#include <functional>
#include <memory>

namespace editor
{

class ChangeFollower
{
public:
    struct Parts // borrowed
    {
        CAtomEditor& editor;
        PictureStore& pictures;
        Navigation& navigation;
        Content& content;
        ModifiedPhases& modified;
        FrameCommands& commands;
        std::function<void(std::string)> tell; // a line of news
    };
    explicit ChangeFollower(const Parts& parts) : m_parts(parts) {}

    // What the editor tells of. A member that goes when another has just come to its container was renamed.
    void Came(IAtom* pAtom) { m_pCreated = CStubRef<CMember>::Share(CMember::Of(pAtom)); }
    void Went(IAtom* pAtom, IAtomContainer* pContainer);

    void OnDiskNews(const std::vector<FolderNews>& news); // other programs have been at work
    void LookAround();                                    // where the system does not tell of that

    // The last part of each step: has phases follow the pictures that they show. What the step's news say of it.
    std::string FollowPhases();
    // Why not all phases follow what was moved last; once. Nobody who takes it is told of it again.
    std::string TakeUnfollowed() { return std::exchange(m_unfollowed, {}); }

private:
    // What has become of members that somebody knows.
    struct FoundIn
    {
        CStubRef<CFolder> pFolder;
        MemberNews news;
        std::vector<CStubRef<CMember>> links; // elsewhere, to what is in it
    };
    using Found = std::vector<FoundIn>;

    Found Look(const std::vector<FolderNews>& news) const;
    std::string Tell(const Found& found) const;
    void FollowRenamed(IAtom* pFormer, CMember* pRenamed);
    void SelectRenamed();
    void ShowFollowed(const std::vector<std::string>& phases);
    void Later(std::function<void()> task); // unless the frame has gone by then

    const Parts m_parts;
    const std::shared_ptr<int> m_pAlive = std::make_shared<int>(); // goes with this object
    CStubRef<CMember> m_pCreated;                                  // what came last, until the next news
    CStubRef<CMember> m_pRenamed;                                  // is to be selected once everyone has heard of it
    std::string m_unfollowed;
};

} // namespace editor
