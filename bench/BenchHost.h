// The smallest host that can show a list: a container of named atoms with icons, and an editor that passes on what
// views say. Its calls cost next to nothing, so that what is measured is the library.
#pragma once

#include "Views/host/host.h"

#include <memory>
#include <string>
#include <vector>

namespace bench
{

// A container that takes nothing, gives nothing away and looks nothing up.
class FixedContainer : public IAtomContainer
{
public:
    BOOL IsModified() override { return FALSE; }
    BOOL FindAtomByID(DWORD, void**, DWORD) override { return FALSE; }
    BOOL FindAtom(const char*, void**, DWORD) override { return FALSE; }
    BOOL AddAtom(IAtom*, DWORD, const char*, void**, DWORD) override { return FALSE; }
    BOOL RenameAtom(IAtom*, const char*, void**, DWORD) override { return FALSE; }
    BOOL RemoveAtom(IAtom*) override { return FALSE; }
    DWORD GetPermissions(IAtom*) override { return 0; }
    BOOL ValidateName(CString&, DWORD) override { return FALSE; }

protected:
    ~FixedContainer() = default;
};

class Container;

// An atom with a name of 11 bytes and one of 64 icons. Counted, but owned by its container whatever the count.
class Atom final : public IAtom, public IAtomIcon
{
public:
    Atom(Container& container, unsigned number, unsigned nameNumber);

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    DWORD GetID() override { return m_number; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    BOOL IsModified() override { return FALSE; }
    BOOL GetIcon(ICONREQUEST*) override { return FALSE; }
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;

private:
    static constexpr DWORD kNameSize = 12; // with its zero

    Container& m_container;
    unsigned m_number;
    int m_nReferences = 0;
    char m_name[kNameSize];
};

// A container of n atoms in shuffled order (a fixed seed): at its own top, or in a library under a name by its number.
class Container final : public FixedContainer, public ICharacterLibrary
{
public:
    explicit Container(unsigned nMembers, class Library* pLibrary = nullptr, unsigned number = 0);

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    DWORD GetID() override { return m_number; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    UINT GetCount() override { return static_cast<UINT>(m_members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;

    std::size_t MemberCount() const { return m_members.size(); }
    Atom& Member(unsigned n) { return *m_members[n]; }
    void Append(); // one member more, whose name comes after all others
    void Append(unsigned nameNumber);

private:
    Library* const m_pLibrary; // NULL: none
    const unsigned m_number;
    std::vector<std::unique_ptr<Atom>> m_members;
    int m_nReferences = 0;
};

// A top with containers that have equal shares of n atoms.
class Library final : public FixedContainer, public ICharacterLibrary
{
public:
    Library(unsigned nContainers, unsigned nAtoms);

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    DWORD GetID() override { return 0; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    UINT GetCount() override { return static_cast<UINT>(m_members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;

    Container& Member(unsigned n) { return *m_members[n]; }

private:
    std::vector<std::unique_ptr<Container>> m_members;
    int m_nReferences = 0;
};

// Makes "GetAtomEditorSv" answer with an editor, for as long as the object lives. The editor calls every handler
// but the sender.
class EditorService
{
public:
    EditorService();
    ~EditorService();
    EditorService(const EditorService&) = delete;
    EditorService& operator=(const EditorService&) = delete;

private:
    struct Provider;
    std::unique_ptr<Provider> m_provider;
};

} // namespace bench
