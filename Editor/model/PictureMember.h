// A member that is seen as a picture from the disk.
#pragma once

#include "Editor/model/Member.h"

namespace editor
{

// The picture is read by the store when it is first wanted; until then a placeholder stands for it, and views hear
// that the atom has changed when it arrives. One that cannot be read fails as a thumbnail and is a torn picture as an
// icon.
class CPictureMember : public hostkit::With<CMember, IAtomThumbnail>
{
public:
    std::string ErrorReason() const override; // known once its icon or thumbnail has been wanted

    UINT GetFrameCount() override; // 1 until the picture has been read
    // As large as the rectangle allows, but enlarged only where the store says so; in its middle. The two values mean
    // nothing here.
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;

protected:
    using With::With;

    toolkit::Surface DrawIcon(CSize size) override;
};

// A picture file.
class CPicture : public CPictureMember
{
public:
    CPicture(CContainer* pContainer, UINT nIndex) : CPictureMember(pContainer, nIndex) {}

    // What names it in a phase in that folder of the same library. Empty when nothing can; see LineFor.
    std::string LineIn(const std::string& folder, int& error) const;
};

} // namespace editor
