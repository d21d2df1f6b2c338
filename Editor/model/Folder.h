// A directory on disk as a container.
#pragma once

#include "Editor/model/Container.h"
#include "Editor/model/Directory.h"

namespace editor
{

// Its members are the sub-folders, the pictures that the library can read, and the phases; other files and those
// whose names begin with a dot are not shown. The directory is read once, when the members are first asked for.
class CFolder : public CContainer
{
public:
    CFolder(CContainer* pContainer, UINT nIndex) : CContainer(pContainer, nIndex) {}

protected:
    Listing Read() override;
    bool FindAny() override;
    UINT FindName(const MemberTable& table, std::string_view name) const override { return table.FindSorted(name); }
    CMember* MakeMember(UINT nIndex, MemberKind kind) override;
    toolkit::Surface DrawIcon(CSize size) override;

private:
    bool IsInside(const DirectoryIdentity& identity) const; // is one of the folders that hold this one that directory?

    DirectoryIdentity m_identity; // once it has been read
};

} // namespace editor
