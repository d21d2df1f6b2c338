#include "Editor/model/Phase.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Folder.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/PhaseText.h"
#include "Editor/pictures/IconPainter.h"
#include "HostKit/pictures/Look.h"
#include "Toolkit/graphics/Gdi.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

namespace editor
{
namespace
{

constexpr int kLeastCover = 32, kWithoutCover = 64; // pixels

} // namespace

CPhase::~CPhase()
{
    KeepTiming(std::nullopt);
    Context().covers.erase(this);
}

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

void CPhase::ChangeTiming(const PhaseTiming& timing)
{
    const std::optional<std::string> former = Unsaved();
    SetTiming(timing);
    if (History* const pHistory = Context().pHistory)
        pHistory->Unsaved(Path(), former, Unsaved());
}

std::optional<std::string> CPhase::Unsaved() const
{
    return m_timing ? std::optional(WithTiming({}, *m_timing)) : std::nullopt;
}

void CPhase::SetUnsaved(const std::optional<std::string>& text)
{
    KeepTiming(text ? std::optional(TimingOf(*text)) : std::nullopt);
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
    History* const pHistory = Context().pHistory;
    const History::Step step(pHistory, "saving");
    const std::string path = Path();
    const std::optional<std::string> unsaved = Unsaved();
    std::string failure = Save(WithTiming(std::move(text), *m_timing));
    if (failure.empty()) {
        if (pHistory)
            pHistory->Unsaved(path, unsaved, std::nullopt);
        m_savedTiming = m_timing;
        KeepTiming(std::nullopt);
    }
    return failure;
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

std::function<bool()> CPhase::LookForAny() const
{
    return [path = Path()] {
        std::string text;
        return ReadPhaseText(path, text).empty() && !PictureLines(text).empty();
    };
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

std::string CPhase::PathOfFrame(UINT nFrame)
{
    const MemberTable& table = Table();
    return nFrame < table.GetCount() ? FindPicture(table.NameOf(nFrame), Container()->Path(), Context().rootPath).path
                                     : std::string();
}

// The path of the first frame. The library knows what phases are seen as.
std::string CPhase::Cover()
{
    std::string path = PathOfFrame(0);
    Context().covers[this] = path;
    return path;
}

// A small icon is to tell a phase from a picture first.
toolkit::Surface CPhase::DrawIcon(CSize size)
{
    const std::string path = size.cx >= kLeastCover && size.cy >= kLeastCover ? Cover() : std::string();
    const CSize pixels = toolkit::ScreenScale().ToPixels(size);
    const auto answer = path.empty() ? PictureStore::Answer() : Context().pPictures->Find(path, pixels, this);
    if (!answer.pPicture)
        return PaintPictogram(hostkit::Pictogram::Phase, size);
    return WithMark(PaintPictureIcon(answer, size), hostkit::Pictogram::Phase);
}

BOOL CPhase::Draw(HDC hdc, CRect& rect, DWORD, DWORD, UINT nFrame)
{
    const std::string path = nFrame == 0 ? Cover() : PathOfFrame(nFrame);
    const CSize size = toolkit::ScaleOf(hdc).ToPixels(rect.Size());
    const auto answer = path.empty() ? PictureStore::Answer() : Context().pPictures->Find(path, size, this);
    if (path.empty() || answer.bFailed) {
        const toolkit::Surface& film = hostkit::GetPictogram(hostkit::Pictogram::Phase, kWithoutCover);
        return hostkit::DrawCentred(hdc, rect, film);
    }
    if (!DrawThumbnail(hdc, rect, answer, Context().pPictures->IsEnlarging()))
        return FALSE;
    DrawMark(hdc, rect, hostkit::Pictogram::Phase);
    return TRUE;
}

DWORD CPhase::PermissionsFor(const ArchiveRecord& record, std::string& trouble)
{
    if (LineOf(record, trouble).empty())
        return 0;
    return record.kind == RecordKind::Link ? APF_ACCEPT | APF_ACCEPTCOPY : APF_ACCEPTCOPY;
}

std::string CPhase::Add(const ArchiveRecord& record, const std::string& name, bool, Entry& added)
{
    std::string trouble;
    added = {LineOf(record, trouble), MemberKind::Link};
    if (added.name.empty())
        return trouble.empty() ? ToShown(name) + kNoPictureOfIt : trouble;
    return SaveChanged([&](std::string text) { return WithLine(std::move(text), added.name); });
}

std::string CPhase::Rename(const CMember& member, const std::string&, Entry&)
{
    return member.ShownName() + ": a line of a phase bears the name of its picture";
}

std::string CPhase::Remove(const CMember& member, TrashPlace&)
{
    const auto gone = std::find_if(m_going.begin(), m_going.end(), [&](const Going& g) { return g.pLink == &member; });
    if (gone != m_going.end()) {
        gone->bRemoved = true;
        return {};
    }
    std::string text;
    if (const std::string reason = ReadUnchanged(text); !reason.empty())
        return ShownName() + ": " + reason;
    std::vector<Going> going = LinesToGo(member, text);
    std::string failure = Save(Without(text, going));
    if (failure.empty() && going.size() > 1) {
        for (Going& one : going)
            one.bRemoved = one.pLink == &member;
        m_going = std::move(going);
        m_formerText = std::move(text);
    }
    return failure;
}

std::vector<CPhase::Going> CPhase::LinesToGo(const CMember& first, std::string_view text)
{
    std::vector<const CMember*> links = std::exchange(m_expected, {});
    if (std::find(links.begin(), links.end(), &first) == links.end())
        links = {&first};
    const std::vector<PictureLine> lines = PictureLines(text);
    std::vector<Going> going;
    for (const CMember* const pLink : links) {
        if (const int nLine = static_cast<const CImageLink*>(pLink)->Position(); nLine >= 0) {
            const PictureLine& line = lines[static_cast<std::size_t>(nLine)];
            going.push_back({pLink, line.at, line.size, true});
        }
    }
    std::sort(going.begin(), going.end(), [](const Going& a, const Going& b) { return a.at < b.at; });
    return going;
}

std::string CPhase::Without(std::string_view text, const std::vector<Going>& going)
{
    std::string left;
    std::size_t done = 0;
    for (const Going& line : going) {
        if (!line.bRemoved)
            continue;
        left.append(text, done, line.at - done);
        done = line.at + line.size;
    }
    return left.append(text, done, text.npos);
}

void CPhase::EndRemovals()
{
    m_expected.clear();
    BringBack();
    m_formerText.clear();
}

std::string CPhase::BringBack()
{
    const std::vector<Going> going = std::exchange(m_going, {});
    const bool bAll = std::all_of(going.begin(), going.end(), [](const Going& line) { return line.bRemoved; });
    return bAll ? std::string() : Save(Without(m_formerText, going));
}

std::string CPhase::InsertLines(const std::vector<std::string>& lines, UINT nBefore)
{
    return SaveChanged([&](std::string text) { return WithLines(std::move(text), lines, nBefore); });
}

std::string CPhase::MoveLines(const std::vector<std::size_t>& moved, UINT nBefore)
{
    return SaveChanged([&](std::string text) { return WithLinesMoved(std::move(text), moved, nBefore); });
}

std::string CPhase::ShiftLines(std::vector<std::size_t>& places, bool bLater)
{
    return SaveChanged([&](std::string text) { return WithLinesShifted(std::move(text), places, bLater); });
}

template <class Change>
std::string CPhase::SaveChanged(Change change)
{
    std::string text;
    if (const std::string reason = ReadUnchanged(text); !reason.empty())
        return ShownName() + ": " + reason;
    const std::string changed = change(text);
    return changed == text ? std::string() : Save(changed);
}

std::string CPhase::LineOfFile(const std::string& path, std::string& trouble) const
{
    int error = 0;
    const bool bPicture = KindOfName(BaseName(path)) == MemberKind::Picture;
    std::error_code unknown;
    const std::string folder = std::filesystem::canonical(FolderOf(path), unknown).string(); // as the library's is
    const std::string real = folder + '/' + std::string(BaseName(path));
    std::string line = bPicture && !unknown ? LineFor(real, Container()->Path(), Context().rootPath, error) : "";
    if (line.empty())
        trouble = ToShown(BaseName(path)) + (error != 0 ? ": " + SystemErrorText(error) : kNoPictureOfIt);
    return line;
}

std::string CPhase::LineOf(const ArchiveRecord& record, std::string& trouble) const
{
    const std::string path = Context().rootPath + '/' + std::string(record.origin);
    const bool isPicture =
        record.kind == RecordKind::Link || (record.kind == RecordKind::File && KindOfName(path) == MemberKind::Picture);
    if (record.origin.empty() || !isPicture)
        return {};
    errno = 0;
    const bool bThere = IsFile(path, record.identity);
    int error = bThere ? 0 : errno;
    const std::string line = bThere ? LineFor(path, Container()->Path(), Context().rootPath, error) : std::string();
    if (error != 0)
        trouble = Because(record.name, SystemErrorText(error));
    return line;
}

// What stands in the file between its lines is not to be lost, and what another program wrote there neither.
std::string CPhase::ReadUnchanged(std::string& text)
{
    if (!BringBack().empty())
        return "lines that were to stay cannot be written";
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

bool CPhase::ReplaceText(const std::string& former, const std::string& text)
{
    std::string now;
    return ReadUnchanged(now).empty() && now == former && Save(text).empty();
}

std::string CPhase::Save(const std::string& text)
{
    const std::string path = Path();
    TextState former;
    const int error = ReadText(path, kLargestPhase, former);
    const std::string reason = error == 0 ? WritePhaseText(path, former, text) : SystemErrorText(error);
    if (History* const pHistory = Context().pHistory; pHistory && reason.empty())
        pHistory->Rewrote(path, former);
    return reason.empty() ? reason : ShownName() + ": " + reason;
}

} // namespace editor
