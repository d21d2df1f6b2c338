// Atoms in memory: an object with a name and a picture, and a container of such objects.
//
//     class Song : public hostkit::CAtom
//     {
//     public:
//         explicit Song(std::string name = {}) : CAtom(std::move(name)) {}
//     protected:
//         toolkit::Surface DrawIcon(CSize size) override { ... }
//     };
//
// can be listed, selected, moved about in the tree and removed. To be renamed, copied and dragged it is told in bytes:
// it overrides Save and Load, and the host says hostkit::RegisterAtom<Song>("Song") once.
#pragma once

#include "HostKit/base/Counted.h"
#include "Toolkit/graphics/Surface.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomIcon.h"

#include <new>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace hostkit
{

class CContainer;

class HOSTKIT_API CAtom : public With<Counted, IAtom, IAtomIcon>
{
public:
    explicit CAtom(std::string name = {});

    // The kit's own side of an atom, borrowed; NULL for NULL and for a foreign one.
    static CAtom* Of(IAtom* pAtom) { return dynamic_cast<CAtom*>(pAtom); }

    const std::string& Name() const { return m_name; }
    CContainer* Container() const { return m_pContainer; } // borrowed; NULL for one that is in none
    bool IsWithin(const CAtom& atom) const;                // in it, however deep; an atom is within itself

    DWORD GetID() override { return m_dwID; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    BOOL IsModified() override { return FALSE; }

    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;

protected:
    friend class AtomFormat;

    // Of that size; pixels that stay transparent show what is below.
    virtual toolkit::Surface DrawIcon(CSize size);

    // What an archive carries of it beside its name and its members; any bytes. Load is handed what Save gave, be it
    // another program's: false, and the object is not made, for what cannot be.
    virtual std::string Save() const { return {}; }
    virtual bool Load(std::string_view bytes) { return bytes.empty(); }

private:
    friend class CContainer;

    std::string m_name;
    const DWORD m_dwID; // never given twice in a process
    CContainer* m_pContainer = nullptr;
    DWORD m_dwOrigin = 0; // whose copy it is, read from an archive of this process
};

// Keeps its members alive, and finds each at once by name and identifier. No two have the same name, in whatever case.
// What is refused, the container's IMyErrorInfo explains until a change succeeds.
//
// Add and Remove are the host's own changes and tell nobody: CAtomEditor::Tell does, when views are there.
class HOSTKIT_API CContainer : public With<CAtom, IAtomContainer>
{
public:
    explicit CContainer(std::string name = {}) : With(std::move(name)) {}

    // The new member, borrowed. NULL for one that has a place already, or whose name is taken or none.
    CAtom* Add(const CStubRef<CAtom>& pAtom) { return Add(pAtom.Get()); }
    template <class Atom>
    Atom* Add(const CStubRef<Atom>& pAtom)
    {
        return static_cast<Atom*>(Add(static_cast<CAtom*>(pAtom.Get())));
    }
    bool Remove(CAtom* pMember);
    const std::vector<CStubRef<CAtom>>& Members() const { return m_members; }

    void GetInterface(DWORD id, void** out) override;

    UINT GetCount() override { return static_cast<UINT>(m_members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    // Takes what was read from an archive; an object of another host it refuses.
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override;

protected:
    ~CContainer() override;

    toolkit::Surface DrawIcon(CSize size) override; // a folder

    // What users may do to a member, or with an object that was read from an archive; permits everything here. A
    // container never gets into itself but as a copy, whatever is said.
    virtual DWORD PermissionsFor(CAtom&) const { return APF_ACCEPT | APF_RENAME | APF_REMOVE; }
    // Why a new member cannot have that name; empty when it can. Here: it must be of one line, and not empty.
    virtual std::string NameTrouble(const std::string& name) const;

private:
    friend class AtomFormat;

    CAtom* Add(CAtom* pAtom);
    CAtom* Find(std::string_view name) const; // in whatever case
    CStubRef<CAtom> TakeOut(CAtom& member);
    BOOL Put(CAtom* pAtom, std::string name, void** ppOut, DWORD dwInterfaceId);
    BOOL Refuse(std::string line); // FALSE

    std::vector<CStubRef<CAtom>> m_members;
    std::unordered_map<std::string, CAtom*> m_byName; // in one case
    std::unordered_map<DWORD, CAtom*> m_byId;
    std::string m_failure;
};

// Says under which name objects of that class are written into archives, and makes them when one is read. The class has
// a constructor without arguments. Once for each, before the first archive.
HOSTKIT_API void RegisterAtom(const char* pszClass, std::type_index type, CStubBaseInterface* (*make)());
template <class Atom>
void RegisterAtom(const char* pszClass)
{
    RegisterAtom(pszClass, typeid(Atom), []() -> CStubBaseInterface* { return new (std::nothrow) Atom; });
}

} // namespace hostkit
