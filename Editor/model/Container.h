// A container of the library: what folders and phases have in common.
#pragma once

#include "Editor/model/Member.h"

#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace editor
{

// The members are read when they are first asked for. Nothing on the disk is changed: whoever wants to add, remove
// or rename a member is refused with a reason.
class CContainer : public CMember, public IAtomContainer
{
public:
    // Members that are still there keep their atoms and identifiers.
    void ReadAgain();
    // Whether there are members, found out without reading more than need be; known until the container it is in is
    // read anew.
    bool HoldsAny();
    std::string ErrorReason() const override; // why the members could not be read, once they were to be

    UINT GetCount() override;
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom*) override { return 0; }
    BOOL ValidateName(CString& strName, DWORD dwReserved) override;

protected:
    using CMember::CMember;

    struct Listing
    {
        MemberTable table;
        std::string error; // why it is not complete; empty when it is
    };

    void* FindInterface(DWORD id) override;
    std::string LastError() const override;
    virtual Listing Read() = 0;
    virtual bool FindAny() { return GetCount() > 0; }
    virtual UINT FindName(const MemberTable& table, std::string_view name) const = 0;
    virtual CMember* MakeMember(UINT nIndex, MemberKind kind) = 0; // with one reference

    std::string_view NameOf(const CMember& member) const; // as it was listed

private:
    friend class CMember;

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
    CStubRef<CMember> MemberAt(UINT nIndex);
    BOOL GiveMember(UINT nIndex, void** ppOut, DWORD dwInterfaceId);
    void MoveMembers(Contents& former, Contents& contents);
    BOOL Refuse();
    DWORD IdOf(const CMember& member) const;
    void Forget(const CMember& member);

    std::unique_ptr<Contents> m_pContents; // NULL until the members are asked for
    std::optional<bool> m_holdsAny;        // as far as it was asked for before they were
    bool m_bRefused = false;               // a change, since the members were read
};

} // namespace editor
