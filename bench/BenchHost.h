// The smallest host that can show a list: a container of named atoms with icons, and an editor that passes on what
// views say. Its calls cost next to nothing, so that what is measured is the library.
#pragma once

#include "bench/Samples.h"
#include "tests/support/HostEditor.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace bench
{

class Container;

// What an object looks like: its icon in lists and trees, and a picture composed of its icon and its name.
class Look : public IAtomIcon, public IAtomThumbnail
{
public:
    explicit Look(const Sample& sample) : m_sample(sample) {}

    BOOL GetIcon(ICONREQUEST*) override { return FALSE; }
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    UINT GetFrameCount() override { return 1; }
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;

protected:
    ~Look() = default;
    BOOL GiveName(char* pBuffer, DWORD* pLength) const;

private:
    const Sample m_sample;
};

// Counted, but owned by its container whatever the count.
class Atom final : public IAtom, public Look
{
public:
    Atom(Container& container, const Sample& sample, unsigned number);

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    DWORD GetID() override { return m_number; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override { return GiveName(pBuffer, pLength); }
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    BOOL IsModified() override { return FALSE; }

private:
    Container& m_container;
    const unsigned m_number;
    int m_nReferences = 0;
};

// A container with members of a kind: at its own top, or in another one. It takes nothing, gives nothing away and looks
// nothing up.
template <class Kind>
class Group : public IAtomContainer, public ICharacterLibrary, public Look
{
public:
    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD id, void** out) override;
    DWORD GetID() override { return 0; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override { return GiveName(pBuffer, pLength); }
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    UINT GetCount() override { return static_cast<UINT>(m_members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;

    BOOL IsModified() override { return FALSE; }
    BOOL FindAtomByID(DWORD, void**, DWORD) override { return FALSE; }
    BOOL FindAtom(const char*, void**, DWORD) override { return FALSE; }
    BOOL AddAtom(IAtom*, DWORD, const char*, void**, DWORD) override { return FALSE; }
    BOOL RenameAtom(IAtom*, const char*, void**, DWORD) override { return FALSE; }
    BOOL RemoveAtom(IAtom*) override { return FALSE; }
    DWORD GetPermissions(IAtom*) override { return 0; }
    BOOL ValidateName(CString&, DWORD) override { return FALSE; }

    Kind& Member(unsigned n) { return *m_members[n]; }

protected:
    Group(const Sample& self, IAtom* pOuter) : Look(self), m_pOuter(pOuter) {}
    ~Group() = default;

    std::vector<std::unique_ptr<Kind>> m_members;

private:
    IAtom* const m_pOuter; // NULL: none
    int m_nReferences = 0;
};

class Container final : public Group<Atom>
{
public:
    explicit Container(unsigned nMembers) : Container(MakeSamples(nMembers)) {}
    explicit Container(std::span<const Sample> members, const Sample& self = {}, IAtom* pOuter = nullptr);

    std::size_t MemberCount() const { return m_members.size(); }
    Atom& Append(const Sample& sample);
    Atom& Append() { return Append(MakeSample(GetCount())); } // whose name comes after all others
    void Truncate(unsigned nMembers) { m_members.resize(nMembers); }
};

// A top with containers that have equal shares of n atoms.
class Library final : public Group<Container>
{
public:
    explicit Library(unsigned nAtoms) : Library(MakeSamples(nAtoms + kContainers + 1)) {}

private:
    explicit Library(std::span<const Sample> samples); // its own, its containers', all others
};

// The editor calls every handler but the sender.
struct EditorService : HostEditor
{
    EditorService() { skipsSender = true; }
};

// Has the editor tell all views.
void Announce(AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer);

} // namespace bench
