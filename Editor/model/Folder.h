// A directory on disk as a container.
#pragma once

#include "Editor/disk/Directory.h"
#include "Editor/disk/FolderWatch.h"
#include "Editor/disk/TakenNames.h"
#include "Editor/model/Container.h"
#include "Editor/model/LibraryContext.h"

namespace editor
{

// Its members are the sub-folders, the pictures that the library can read, the phases and all other files, but for
// those whose names begin with a dot. The directory is read once, when the members are first asked for.
//
// What is removed goes to the user's trash (Trash.h). Nothing is ever replaced: what is added or renamed to a name that
// is there already is refused. A phase that is added keeps leading to the pictures of this library that it led to.
class CFolder : public CContainer
{
public:
    CFolder(CContainer* pContainer, UINT nIndex) : CContainer(pContainer, nIndex) {}

    // A new folder or, with that text, a new phase, under that name or another like it that is free. Empty, or one line
    // with the reason.
    std::string Make(MemberKind kind, const std::string& name, const std::string& text, CStubRef<CMember>& pMade);
    // Of a file anywhere that has been copied into it, for a move: to the trash. Empty, or one line with the reason.
    std::string RemoveOriginal(const std::string& path);
    bool IsFollowed() const; // false: others' doings are to be seen, but are not told of
    std::function<bool()> LookForAny() const override;

    // Looks for those of its files alone that the disk has told of, if it has been read.
    void LookFor(const FolderNews& onDisk, MemberNews& news);

protected:
    Listing Read() override;
    UINT FindName(const MemberTable& table, std::string_view name) const override { return table.FindSorted(name); }
    CMember* MakeMember(UINT nIndex, MemberKind kind) override;
    toolkit::Surface DrawIcon(CSize size) override;

    DWORD MemberPermissions() const override { return APF_RENAME | APF_REMOVE; }
    // Whatever it can show; a folder does not take itself, nor what holds it, but as a copy.
    DWORD PermissionsFor(const ArchiveRecord& record, std::string& trouble) override;
    std::string Add(const ArchiveRecord& record, const std::string& name, bool mayDiffer, Entry& added) override;
    std::string Rename(const CMember& member, const std::string& name, Entry& renamed) override;
    std::string Remove(const CMember& member, TrashPlace& place) override;
    std::string ValidNameFor(std::string_view name) override;

private:
    bool CanShow(const ArchiveRecord& record, std::string_view name, MemberKind& kind) const;
    std::string TroubleOfNewName(MemberKind former, const std::string& name, MemberKind& kind) const;
    std::string MoveAway(const std::string& path, TrashPlace& place);
    void LookForName(const Directory& directory, const std::string& name, MemberNews& news);
    void LookForRenamed(const Directory& directory, const std::string& from, const std::string& to, MemberNews& news);
    std::optional<MemberKind> KindOnDisk(const Directory& directory, const std::string& name) const;
    std::vector<FileIdentity> Outer() const; // of the folders that hold this one

    FileIdentity m_identity; // once it has been read
    TakenNames m_taken;
    FolderWatch::Place m_watched;
};

} // namespace editor
