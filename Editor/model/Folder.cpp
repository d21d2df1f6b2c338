#include "Editor/model/Folder.h"

#include "Editor/disk/FileText.h"
#include "Editor/disk/TempEntry.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/Phase.h"
#include "Editor/model/PictureMember.h"
#include "Editor/model/PlainFile.h"
#include "Editor/pictures/IconPainter.h"

#include <algorithm>

namespace editor
{
namespace
{

bool Contains(const std::vector<FileIdentity>& identities, const FileIdentity& identity)
{
    return std::ranges::find(identities, identity) != identities.end();
}

} // namespace

CContainer::Listing CFolder::Read()
{
    Listing listing;
    if (FolderWatch* const pWatch = Context().pWatch)
        m_watched = pWatch->Watch(Path()); // before it is read: nothing is missed
    Directory directory(Path());
    m_identity = {};
    if (directory.GetError() == 0 && Contains(Outer(), directory.GetIdentity())) {
        listing.error = "a link to a folder that holds it, not opened";
        return listing;
    }
    m_identity = directory.GetIdentity();
    directory.ForEach([&](const char* pszName, bool isDirectory) {
        Context().work.GetMeter().Did(1);
        listing.table.Add(pszName, isDirectory ? MemberKind::Folder : KindOfName(pszName));
        return true;
    });
    listing.table.Sort();
    if (directory.GetError() != 0)
        listing.error = SystemErrorText(directory.GetError());
    RemoveLeftOvers(Path(), directory.GetTempNames());
    return listing;
}

std::function<bool()> CFolder::LookForAny() const
{
    return [path = Path(), outer = Outer()] {
        Directory directory(path);
        bool bAny = false;
        if (directory.GetError() == 0 && !Contains(outer, directory.GetIdentity()))
            directory.ForEach([&](const char*, bool) {
                bAny = true;
                return false;
            });
        return bAny;
    };
}

CMember* CFolder::MakeMember(UINT nIndex, MemberKind kind)
{
    switch (kind) {
    case MemberKind::Folder:
        return new CFolder(this, nIndex);
    case MemberKind::Phase:
        return new CPhase(this, nIndex);
    case MemberKind::File:
        return new CPlainFile(this, nIndex);
    default:
        return new CPicture(this, nIndex);
    }
}

toolkit::Surface CFolder::DrawIcon(CSize size)
{
    return PaintPictogram(hostkit::Pictogram::Folder, size);
}

std::vector<FileIdentity> CFolder::Outer() const
{
    std::vector<FileIdentity> outer;
    for (const CContainer* pOuter = Container(); pOuter; pOuter = pOuter->Container())
        if (const auto* const pFolder = dynamic_cast<const CFolder*>(pOuter))
            outer.push_back(pFolder->m_identity);
    return outer;
}

} // namespace editor
