// A container of the library: what folders and phases have in common.
#pragma once

#include "Editor/archive/ArchiveFormat.h"
#include "Editor/disk/Trash.h"
#include "Editor/model/Member.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace editor
{

// What has become of a container's members, for those who know them.
struct MemberNews
{
    struct Renamed
    {
        CStubRef<CMember> pFormer, pNow;
    };
    std::vector<Renamed> renamed;
    std::vector<CStubRef<CMember>> written; // which somebody knows
    static constexpr std::size_t kFew = 16;
    std::vector<CStubRef<CMember>> come; // at most kFew
    bool isOther = false;                // have others come or gone, or is their order another?
};

// The members are read when they are first asked for. Adding, renaming and removing them acts on the disk at once. What
// fails changes nothing, and the container's IMyErrorInfo names the object and the reason until a change succeeds or
// the members are read anew.
class CContainer : public hostkit::With<CMember, IAtomContainer>
{
public:
    // Members that are still there keep their atoms and identifiers.
    void ReadAgain();
    // The same for one whose members are known to somebody, who is to be told of `news`. Where they have not been read,
    // only what was found out without reading them is forgotten.
    void ReadAgain(MemberNews& news);
    CMember* LiveMember(std::string_view name); // whose atom somebody holds; borrowed, else NULL. Reads nothing
    // Whether there are members, as far as it is known without asking the disk: until the container it is in is read
    // anew.
    std::optional<bool> HoldsAny() { return m_pContents ? GetCount() > 0 : m_holdsAny; }
    void NoteHoldsAny(bool bAny) { m_holdsAny = bAny; }
    // Finds it out, without reading more than need be. Knows nothing of this object: any thread may call it.
    virtual std::function<bool()> LookForAny() const = 0;
    std::string ErrorReason() const override; // why the members could not be read, once they were to be

    UINT GetCount() override { return Members().table.GetCount(); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    // What is accepted as a copy only is refused under any name but the one that ValidateName gave last: that is a
    // move, after which the original would go.
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    // The line that tells why the member with that identifier could not be removed, since that was forgotten last: also
    // after changes that succeeded. Empty for one that was not tried.
    std::string WhyItStayed(DWORD dwID) const;
    void ForgetWhatStayed() { m_stayed.clear(); }
    // For a member what the kind of container allows: whether the disk does, the attempt tells, with the reason. For
    // what was read from an archive the container's IMyErrorInfo tells why it is refused, where there is more to be
    // said than that the container does not take such objects.
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override;

protected:
    using With::With;

    struct Listing
    {
        MemberTable table;
        std::string error; // why it is not complete; empty when it is
    };

    std::string LastErrorLine() const override { return m_failure.empty() ? ErrorLine() : m_failure; }
    virtual Listing Read() = 0;
    virtual bool KeepsPlaces() const { return false; } // is a member what stands in its place, whatever its name?
    virtual UINT FindName(const MemberTable& table, std::string_view name) const = 0;
    virtual CMember* MakeMember(UINT nIndex, MemberKind kind) = 0; // with one reference

    // On the disk, about present members. What can fail answers with one line that names the file and the reason;
    // empty: it is done.
    struct Entry
    {
        std::string name; // as it is listed
        MemberKind kind = MemberKind::Picture;
    };
    virtual DWORD MemberPermissions() const = 0;
    virtual DWORD PermissionsFor(const ArchiveRecord& record, std::string& trouble) = 0;
    // Under that name or, when it `mayDiffer`, under another like it, should that have been taken meanwhile.
    virtual std::string Add(const ArchiveRecord& record, const std::string& name, bool mayDiffer, Entry& added) = 0;
    virtual std::string Rename(const CMember& member, const std::string& name, Entry& renamed) = 0;
    virtual std::string Remove(const CMember& member, TrashPlace& place) = 0; // `place`: where it went, if to the trash
    virtual std::string ValidNameFor(std::string_view name) = 0;              // empty when there is none

    CStubRef<CMember> MemberAt(UINT nIndex);
    UINT Append(const Entry& entry);
    void Drop(UINT nIndex) noexcept;
    bool AreRead() const { return m_pContents != nullptr; }

    std::string_view NameOf(const CMember& member) const; // as it was listed; empty when that is forgotten
    MemberKind KindOf(const CMember& present) const { return m_pContents->table.KindOf(present.Index()); }
    const MemberTable& Table() { return Members().table; }

private:
    friend class CMember;

    class BeingRead;
    struct Gone
    {
        std::string name;
        DWORD id;
    };
    struct Contents : Listing
    {
        std::map<const CMember*, Gone> gone; // members alive whose files have gone
    };

    Contents& Members(); // reads them when need be
    BOOL GiveMember(UINT nIndex, void** ppOut, DWORD dwInterfaceId);
    void MoveMembers(Contents& former, Contents& contents);
    bool IsPresent(const CMember* pMember) const;
    std::string TroubleOfMove(const ArchiveRecord& record, std::string_view name);
    BOOL Note(std::string failure); // FALSE when there is one
    std::optional<UINT> BringBack(std::string_view name);
    void Tidy();
    DWORD IdOf(const CMember& member) const;
    void Forget(const CMember& member);

    std::unique_ptr<Contents> m_pContents; // NULL until the members are asked for
    std::optional<bool> m_holdsAny;        // as far as it was found out before they were
    std::string m_validName;               // given by ValidateName, and used by no member yet
    std::string m_failure;                 // of the last change; empty when it succeeded
    std::map<DWORD, std::string> m_stayed; // which could not be removed, and why
};

} // namespace editor
