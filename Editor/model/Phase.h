// A phase: a text file whose lines name pictures, in order.
#pragma once

#include "Editor/model/Container.h"
#include "Editor/model/PhaseTiming.h"

#include <optional>

namespace editor
{

// A line names a picture by its path from the phase's own folder or, failing that, from the library's. Empty lines
// and those that begin with # do not count; a picture may be named any number of times. The members bear the last
// part of the path as their name.
//
// Pictures of the same library that are added become lines at the end; removing a link takes its line away, and its
// picture stays. Each of these changes is saved at once, the file as a whole; what a link leads to must be called a
// phase, too. Lines cannot be renamed. The timing alone is kept until it is saved, and the phase is modified so long;
// whoever changes it keeps the phase alive.
//
// It is seen as its first frame with a phase's mark, where that can be read.
class CPhase : public hostkit::With<CContainer, IPhase, IAtomThumbnail>
{
public:
    // Behind the name of what cannot become a frame.
    static constexpr const char* kNoPictureOfIt = ": only pictures of the same library can be put into a phase";

    CPhase(CContainer* pContainer, UINT nIndex) : With(pContainer, nIndex) {}
    ~CPhase() override;

    std::string_view LineOf(const CMember& link) const { return CContainer::NameOf(link); }

    // Links that are about to be removed, one after the other: their lines leave the file together, with the first of
    // them. Lines whose links were not removed by the end come back. The links are borrowed until then.
    void BeginRemovals(std::vector<const CMember*> links) { m_expected = std::move(links); }
    void EndRemovals();
    // Writes a text of a phase over what is in the file, provided that this is what it is thought to be, and nothing
    // that others have written. The members are not read anew.
    bool ReplaceText(const std::string& former, const std::string& text);

    // Frames, from 0, come before that one or, where there is none, behind the last: new ones with these lines, or some
    // of its own, whose positions are in order. Saved at once, as one change; the members are not read anew. Empty, or
    // one line with the reason.
    std::string InsertLines(const std::vector<std::string>& lines, UINT nBefore);
    std::string MoveLines(const std::vector<std::size_t>& moved, UINT nBefore);
    // The same for one place on; `places` become the new ones.
    std::string ShiftLines(std::vector<std::size_t>& places, bool bLater);
    // The line for what a record holds: empty unless it is a picture of this very library that is still there.
    // `trouble` becomes the reason when that cannot be told.
    std::string LineOf(const ArchiveRecord& record, std::string& trouble) const;
    std::string LineOfFile(const std::string& path, std::string& trouble) const; // the same for a file's path

    // Where the picture of a frame is; empty where there is no such frame, or it lies outside the library.
    std::string PathOfFrame(UINT nFrame);
    std::function<bool()> LookForAny() const override;
    UINT GetFrameCount() override { return GetCount(); }
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;

    int GetPosition(IImageLink* pLink) override; // from 0; -1 for what is no member

    PhaseTiming GetTiming() const; // as it was set or, failing that, as the file says; the usual one without a file
    void SetTiming(const PhaseTiming& timing);
    void ChangeTiming(const PhaseTiming& timing); // the same, and the history hears of it
    // Of the timing what is not saved, as it would stand in the file; nothing: it is not modified.
    std::optional<std::string> Unsaved() const;
    void SetUnsaved(const std::optional<std::string>& text);
    std::string SaveTiming(); // nothing when it is not modified. Empty when done, else one line with name and reason
    BOOL IsModified() override { return m_timing.has_value(); }

protected:
    Listing Read() override;
    bool KeepsPlaces() const override { return true; }
    UINT FindName(const MemberTable& table, std::string_view name) const override;
    CMember* MakeMember(UINT nIndex, MemberKind kind) override;
    toolkit::Surface DrawIcon(CSize size) override;

    DWORD MemberPermissions() const override { return APF_REMOVE; }
    DWORD PermissionsFor(const ArchiveRecord& record, std::string& trouble) override; // a picture becomes a line
    std::string Add(const ArchiveRecord& record, const std::string& name, bool mayDiffer, Entry& added) override;
    std::string Rename(const CMember& member, const std::string& name, Entry& renamed) override;
    std::string Remove(const CMember& member, TrashPlace& place) override;
    std::string ValidNameFor(std::string_view name) override { return std::string(name); } // as often as one likes

private:
    std::string Cover();
    PhaseTiming SavedTiming() const;
    void KeepTiming(std::optional<PhaseTiming> timing);
    template <class Change>
    std::string SaveChanged(Change change);
    std::string ReadUnchanged(std::string& text);
    std::string Save(const std::string& text);
    struct Going
    {
        const CMember* pLink;
        std::size_t at, size;  // its line, in the text as it was
        bool bRemoved = false; // not the line alone
    };
    static std::string Without(std::string_view text, const std::vector<Going>& going); // the lines removed
    std::vector<Going> LinesToGo(const CMember& first, std::string_view text);
    std::string BringBack();

    std::optional<PhaseTiming> m_timing;              // set, and not saved
    mutable std::optional<PhaseTiming> m_savedTiming; // as last read

    std::vector<const CMember*> m_expected; // links to be removed
    std::vector<Going> m_going;             // whose lines have gone together, in their order
    std::string m_formerText;               // with these lines
};

} // namespace editor
