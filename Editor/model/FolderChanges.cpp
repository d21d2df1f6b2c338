// A folder's members added, renamed and removed on the disk.
#include "Editor/archive/Unpack.h"
#include "Editor/disk/FileNames.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/Trash.h"
#include "Editor/model/Folder.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/PhaseText.h"
#include "Toolkit/base/Text.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace editor
{
namespace
{

namespace fs = std::filesystem;

// Is it the folder, or does it hold it? Whatever links led there.
bool HoldsOrIs(const FileIdentity& identity, const std::string& path)
{
    std::error_code unreadable;
    fs::path folder = fs::canonical(path, unreadable);
    if (unreadable)
        folder = path;
    while (folder.has_relative_path() && !IsFile(folder.string(), identity))
        folder = folder.parent_path();
    return IsFile(folder.string(), identity);
}

std::string_view EndingOf(std::string_view name)
{
    return name.substr(std::min(name.rfind('.'), name.size()));
}

// Of a folder, too, a name may hold a dot: ".kra" tells what a file is, and neither ".5" nor ". Bell" does.
bool SaysWhatItIs(std::string_view ending)
{
    constexpr std::size_t kLongest = 9; // with its dot
    const auto isPart = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    const auto isLetter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
    return ending.size() > 1 && ending.size() <= kLongest && std::ranges::all_of(ending.substr(1), isPart) &&
           std::ranges::any_of(ending, isLetter);
}

std::string FormerFolder(const std::string& root, std::string_view origin)
{
    return (fs::path(root) / origin).parent_path().string();
}

} // namespace

DWORD CFolder::PermissionsFor(const ArchiveRecord& record, std::string& trouble)
{
    MemberKind kind;
    if (!CanShow(record, record.name, kind))
        return 0;
    const std::string path = Path();
    if (eaccess(path.c_str(), W_OK | X_OK) != 0) {
        trouble = Because(Name(), SystemErrorText(errno));
        return 0;
    }
    const bool isOwnHolder = record.kind == RecordKind::Folder && HoldsOrIs(record.identity, path);
    return isOwnHolder ? APF_ACCEPTCOPY : APF_ACCEPT | APF_ACCEPTCOPY;
}

std::string CFolder::Add(const ArchiveRecord& record, const std::string& name, bool mayDiffer, Entry& added)
{
    added.name = name;
    if (record.kind == RecordKind::Link)
        return Because(name, "a line of a phase can only be put into a phase");
    const bool isOwn = name == record.name; // as it is called on this system
    if (std::string trouble = isOwn ? FileNameTrouble(name) : NameTrouble(name); !trouble.empty())
        return Because(name, trouble);
    if (!CanShow(record, name, added.kind))
        return Because(name, "not a file that the library shows");
    const std::string path = Path();
    ArchiveRecord adapted = record;
    std::string text;
    if (added.kind == MemberKind::Phase && record.kind == RecordKind::File && !record.origin.empty() &&
        IsPhaseText(record.content)) {
        const std::string& root = Context().rootPath;
        text = record.content;
        if (std::string trouble = Relocate(text, FormerFolder(root, record.origin), path, root); !trouble.empty())
            return Because(name, trouble);
        adapted.content = text;
    }
    bool bCurrent = m_taken.IsCurrent(path);
    const auto another = [&] {
        m_taken.Forget();
        bCurrent = true;
        return mayDiffer ? ValidNameFor(name) : std::string();
    };
    LongWork& work = Context().work;
    std::string failure = Aside(work, [&] { return Unpack(path, added.name, adapted, another, &work.GetMeter()); });
    if (failure.empty() && bCurrent)
        m_taken.Added(path, added.name);
    if (History* const pHistory = Context().pHistory; pHistory && failure.empty()) {
        const History::Step step(pHistory);
        if (!record.origin.empty())
            Context().pFollower->Came(Context().rootPath + '/' + std::string(record.origin), record.identity,
                                      path + '/' + added.name);
        pHistory->Came(path, added.name);
    }
    return failure;
}

std::string CFolder::Rename(const CMember& member, const std::string& name, Entry& renamed)
{
    const std::string former(member.Name());
    renamed = {name, MemberKind::Folder};
    if (std::string trouble = TroubleOfNewName(KindOf(member), name, renamed.kind); !trouble.empty())
        return Because(former, trouble);
    m_taken.Forget();
    const std::string path = Path();
    const int error = RenameInFolder(path, former, name);
    if (History* const pHistory = Context().pHistory; pHistory && error == 0) {
        const History::Step step(pHistory);
        Context().pFollower->Renamed(path + '/' + former, path + '/' + name);
        pHistory->Renamed(path, former, name);
    }
    if (error == EEXIST)
        return Because(former, "there is a \"" + ToShown(name) + "\" already");
    return error == 0 ? std::string() : Because(former, SystemErrorText(error));
}

std::string CFolder::Remove(const CMember& member, TrashPlace& place)
{
    m_taken.Forget();
    return MoveAway(member.Path(), place);
}

std::string CFolder::Make(MemberKind kind, const std::string& name, const std::string& text, CStubRef<CMember>& pMade)
{
    ArchiveRecord record;
    record.kind = kind == MemberKind::Folder ? RecordKind::Folder : RecordKind::File;
    record.changed = std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
    record.name = name;
    record.content = text;
    GetCount(); // its members are known
    Entry made;
    std::string failure = Add(record, ValidNameFor(name), true, made);
    if (failure.empty())
        pMade = MemberAt(Append(made));
    return failure;
}

std::string CFolder::RemoveOriginal(const std::string& path)
{
    TrashPlace place;
    return MoveAway(path, place);
}

std::string CFolder::MoveAway(const std::string& path, TrashPlace& place)
{
    struct stat status;
    const bool bKnown = stat(path.c_str(), &status) == 0;
    const FileIdentity identity = bKnown ? FileIdentity{status.st_dev, status.st_ino} : FileIdentity();
    LongWork& work = Context().work;
    const std::string reason =
        work.IsCancelled() ? kCancelled : Aside(work, [&] { return RemoveFromDisk(path, place); });
    work.GetMeter().Did(1);
    if (History* const pHistory = Context().pHistory; pHistory && !place.name.empty()) {
        Context().pFollower->Went(path, identity);
        pHistory->Went(path, place);
    }
    return reason.empty() ? reason : Because(BaseName(path), reason);
}

std::string CFolder::ValidNameFor(std::string_view name)
{
    const std::string valid = MakeValid(name);
    if (valid.empty())
        return valid;
    m_taken.Update(Path());
    const MemberKind kind = KindOfName(valid);
    const std::string_view ending = EndingOf(valid);
    return m_taken.FreeName(valid, kind == MemberKind::File && !SaysWhatItIs(ending) ? std::string_view() : ending);
}

bool CFolder::CanShow(const ArchiveRecord& record, std::string_view name, MemberKind& kind) const
{
    const auto shown = record.kind == RecordKind::Folder ? MemberKind::Folder
                       : record.kind == RecordKind::Link ? std::nullopt
                                                         : std::optional(KindOfName(name));
    kind = shown.value_or(MemberKind::Link);
    return shown && !name.starts_with('.');
}

std::string CFolder::TroubleOfNewName(MemberKind former, const std::string& name, MemberKind& kind) const
{
    if (std::string trouble = NameTrouble(name); !trouble.empty())
        return trouble;
    if (name.starts_with('.'))
        return "a name that begins with a dot would hide it";
    kind = former == MemberKind::Folder ? former : KindOfName(name);
    if (kind == former || former == MemberKind::File)
        return {};
    return "under the name \"" + ToShown(name) + "\" it would be no " +
           (former == MemberKind::Phase ? "phase" : "picture") + " any more";
}

} // namespace editor
