// What others have done to a folder's files.
#include "Editor/model/Folder.h"
#include "Editor/model/LibraryContext.h"

namespace editor
{

bool CFolder::IsFollowed() const
{
    return m_watched || !Context().pWatch || !AreRead();
}

void CFolder::LookFor(const FolderNews& onDisk, MemberNews& news)
{
    m_taken.Forget();
    if (onDisk.isUnknown || !AreRead())
        return ReadAgain(news);
    const Directory directory(Path());
    if (directory.GetError() != 0)
        return ReadAgain(news);
    for (const auto& [from, to] : onDisk.renamed)
        LookForRenamed(directory, from, to, news);
    for (const std::string& name : onDisk.names)
        LookForName(directory, name, news);
}

std::optional<MemberKind> CFolder::KindOnDisk(const Directory& directory, const std::string& name) const
{
    bool isDirectory = false;
    if (!directory.Find(name.c_str(), isDirectory))
        return std::nullopt;
    return isDirectory ? MemberKind::Folder : KindOfName(name);
}

void CFolder::LookForName(const Directory& directory, const std::string& name, MemberNews& news)
{
    const std::optional<MemberKind> kind = KindOnDisk(directory, name);
    const UINT nKnown = FindName(Table(), name);
    const bool bKnown = nKnown != MemberTable::kNone;
    if (bKnown && kind == Table().KindOf(nKnown)) {
        if (CMember* const pLive = LiveMember(name); pLive && kind != MemberKind::Folder)
            news.written.push_back(CStubRef<CMember>::Share(pLive));
        return;
    }
    if (bKnown)
        Drop(nKnown);
    const UINT nNow = kind ? Append({name, *kind}) : MemberTable::kNone;
    if (kind && !bKnown && news.come.size() < MemberNews::kFew)
        news.come.push_back(MemberAt(nNow));
    else
        news.isOther |= bKnown || kind;
}

// One that was only on its way, such as a program's that saves under another name first, is none.
void CFolder::LookForRenamed(const Directory& directory, const std::string& from, const std::string& to,
                             MemberNews& news)
{
    const auto pFormer = CStubRef<CMember>::Share(LiveMember(from));
    const std::optional<MemberKind> kind = KindOnDisk(directory, to);
    const bool bKnown = FindName(Table(), to) != MemberTable::kNone;
    if (!pFormer || KindOnDisk(directory, from) || bKnown || kind != Table().KindOf(FindName(Table(), from)))
        return;
    Drop(FindName(Table(), from));
    news.renamed.push_back({CStubRef<CMember>::Share(pFormer.Get()), MemberAt(Append({to, *kind}))});
}

} // namespace editor
