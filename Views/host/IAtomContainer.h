#pragma once

#include "Views/host/IAtom.h"

class CString;

// What a container allows for an atom; other bits are not looked at.
inline constexpr DWORD APF_ACCEPT = 0x01;     // may be pasted or dropped into the container
inline constexpr DWORD APF_RENAME = 0x02;     // its name may be changed
inline constexpr DWORD APF_REMOVE = 0x08;     // may be taken out
inline constexpr DWORD APF_ACCEPTCOPY = 0x20; // may be pasted as a copy only

// An atom that holds member atoms. Its IAtom is reached by conversion.
//
// One object gives the same IAtom pointer whichever way it is reached: by that conversion, by GetInterface, or as a
// member of its own container.
class VIEWS_API IAtomContainer : public virtual IAtom
{
public:
    virtual UINT GetCount() = 0;
    // Fills ppOut with nCount members from index nFirst on, each as the asked interface with a reference; NULL where
    // there is no member. The array holds anything before.
    virtual void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) = 0;
    // TRUE when a member has that GetID; ppOut NULL only tests.
    virtual BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId) = 0;
    virtual BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) = 0;
    virtual void ContainerReserved5() {}
    // Puts pSource, read from an archive, into the container under the name: the new member. dwReserved is 0.
    virtual BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) = 0;
    // The member under its new name, which is a new atom. FALSE when refused; the container's IMyErrorInfo says why.
    virtual BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) = 0;
    virtual BOOL RemoveAtom(IAtom* pAtom) = 0;
    virtual DWORD GetPermissions(IAtom* pAtom) = 0; // APF_ bits, for a member or a candidate
    // Turns strName into a name that a new member may have; FALSE when none can be made of it. dwReserved is 0.
    virtual BOOL ValidateName(CString& strName, DWORD dwReserved) = 0;

protected:
    ~IAtomContainer() = default;
};
