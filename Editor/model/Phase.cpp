#include "Editor/model/Phase.h"

#include "Editor/model/FileText.h"
#include "Editor/model/Folder.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/PhaseText.h"
#include "Editor/model/TempEntry.h"
#include "Editor/pictures/IconPainter.h"

#include <filesystem>
#include <utility>

namespace editor
{

int CPhase::GetPosition(IImageLink* pLink)
{
    const auto* const pOwn = dynamic_cast<CImageLink*>(pLink);
    return pOwn && pOwn->Container() == this ? pOwn->Position() : -1;
}

PhaseTiming CPhase::GetTiming() const
{
    return m_timing ? *m_timing : SavedTiming();
}

PhaseTiming CPhase::SavedTiming() const
{
    if (!m_savedTiming) {
        std::string text;
        m_savedTiming = ReadPhaseText(Path(), text).empty() ? TimingOf(text) : PhaseTiming();
    }
    return *m_savedTiming;
}

void CPhase::SetTiming(const PhaseTiming& timing)
{
    KeepTiming(timing == SavedTiming() ? std::nullopt : std::optional(timing));
}

// The library knows all phases that are not saved.
void CPhase::KeepTiming(std::optional<PhaseTiming> timing)
{
    std::vector<const CPhase*>& unsaved = Context().unsaved;
    std::erase(unsaved, this);
    if (timing)
        unsaved.push_back(this);
    m_timing = timing;
}

// Of the file as it is now: lines that others have written meanwhile stay.
std::string CPhase::SaveTiming()
{
    if (!m_timing)
        return {};
    std::string text;
    if (const std::string reason = ReadPhaseText(Path(), text); !reason.empty())
        return ShownName() + ": " + reason;
    std::string failure = Save(WithTiming(std::move(text), *m_timing));
    if (failure.empty()) {
        m_savedTiming = m_timing;
        KeepTiming(std::nullopt);
    }
    return failure;
}

void* CPhase::FindInterface(DWORD id)
{
    return id == IID_IPhase ? static_cast<IPhase*>(this) : CContainer::FindInterface(id);
}

CContainer::Listing CPhase::Read()
{
    Listing listing;
    std::string text;
    listing.error = ReadPhaseText(Path(), text);
    m_savedTiming.reset();
    if (listing.error.empty())
        for (const PictureLine& line : PictureLines(text))
            listing.table.Add(line.picture, MemberKind::Link);
    return listing;
}

UINT CPhase::FindName(const MemberTable& table, std::string_view name) const
{
    for (UINT i = 0; i < table.GetCount(); ++i)
        if (BaseName(table.NameOf(i)) == name)
            return i;
    return MemberTable::kNone;
}

CMember* CPhase::MakeMember(UINT nIndex, MemberKind)
{
    return new CImageLink(this, nIndex);
}

toolkit::Surface CPhase::DrawIcon(CSize size)
{
    return PaintPictogram(Pictogram::Phase, size);
}

DWORD CPhase::PermissionsFor(const ArchiveRecord& record)
{
    if (LineOf(record).empty())
        return 0;
    return record.kind == RecordKind::Link ? APF_ACCEPT | APF_ACCEPTCOPY : APF_ACCEPTCOPY;
}

std::string CPhase::Add(const ArchiveRecord& record, const std::string& name, Entry& added)
{
    added = {LineOf(record), MemberKind::Link};
    if (added.name.empty())
        return ToShown(name) + ": only pictures of the same library can be put into a phase";
    std::string text;
    std::string reason = ReadUnchanged(text);
    return !reason.empty() ? ShownName() + ": " + reason : Save(WithLine(std::move(text), added.name));
}

std::string CPhase::Rename(const CMember& member, const std::string&, Entry&)
{
    return member.ShownName() + ": a line of a phase bears the name of its picture";
}

std::string CPhase::Remove(const CMember& member)
{
    std::string text;
    if (const std::string reason = ReadUnchanged(text); !reason.empty())
        return ShownName() + ": " + reason;
    const auto nLine = static_cast<std::size_t>(static_cast<const CImageLink&>(member).Position());
    const PictureLine line = PictureLines(text)[nLine];
    return Save(text.erase(line.at, line.size));
}

// The line for what a record holds: empty unless it is a picture of this very library that is still there.
std::string CPhase::LineOf(const ArchiveRecord& record) const
{
    const std::string path = Context().rootPath + '/' + std::string(record.origin);
    const bool isPicture =
        record.kind == RecordKind::Link || (record.kind == RecordKind::File && KindOfName(path) == MemberKind::Picture);
    if (record.origin.empty() || !isPicture || !IsFile(path, record.identity))
        return {};
    return LineFor(path, Container()->Path(), Context().rootPath);
}

// What stands in the file between its lines is not to be lost, and what another program wrote there neither.
std::string CPhase::ReadUnchanged(std::string& text)
{
    const MemberTable& table = Table();
    std::string reason = ReadPhaseText(Path(), text);
    if (!reason.empty())
        return reason;
    const std::vector<PictureLine> lines = PictureLines(text);
    bool isSame = lines.size() == table.GetCount();
    for (UINT i = 0; isSame && i < table.GetCount(); ++i)
        isSame = lines[i].picture == table.NameOf(i);
    return isSame ? std::string() : "was changed by another program; read it again first";
}

// A library from elsewhere may hold links to anything of the user's: a line among the commands that a shell runs is
// one.
std::string CPhase::Save(const std::string& text)
{
    std::error_code unreadable;
    const std::string real = std::filesystem::canonical(Path(), unreadable).string();
    if (!unreadable && KindOfName(real) != MemberKind::Phase)
        return ShownName() + ": a link to a file that is no phase";
    const int error = ReplaceFile(Path(), text);
    return error == 0 ? std::string() : ShownName() + ": " + SystemErrorText(error);
}

} // namespace editor
