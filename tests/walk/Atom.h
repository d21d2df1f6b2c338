// The atoms of the walk: they know how often they are held, and each call of one may be the host's moment to be rude.
#pragma once

#include "Views/host/StubRef.h"
#include "Views/host/host.h"
#include "tests/kernel/FakeCounted.h"

#include <string>
#include <vector>

class Host;

enum class Kind
{
    Plain,
    Container,
    Phase // its members are image links
};

class Atom final : public FakeCounted<Atom>,
                   public IAtomContainer,
                   public IPhase,
                   public IDispAtom,
                   public IAtomIcon,
                   public IAtomThumbnail,
                   public IImageLink,
                   public ICharacterLibrary
{
public:
    Atom(Host& host, std::string strName, Kind kindOf = Kind::Plain);
    ~Atom() override;

    Host& host;
    const int serial; // tells atoms of one name apart in messages
    std::string name;
    std::string displayName; // offers IDispAtom when it has one
    const Kind kind;
    bool hasIcon = false, isModified = false;
    int nFrames = 0; // offers IAtomThumbnail when not 0
    int position = 0;
    Atom* parent = nullptr;
    std::vector<CStubRef<Atom>> members;
    DWORD permissions = APF_ACCEPT | APF_REMOVE | APF_RENAME;

    bool IsContainer() const { return kind != Kind::Plain; }
    bool IsLink() const { return parent && parent->kind == Kind::Phase; }
    bool Holds(const Atom* pMember) const { return pMember->parent == this; }
    Atom* Add(Atom* pNew);      // takes its one reference
    bool Remove(Atom* pMember); // the host keeps it alive for as long as somebody else holds it
    std::string Label() const { return displayName.empty() ? name : displayName; }
    std::string TreeLabel() const { return Label() + (isModified ? " *" : ""); }

    DWORD GetID() override { return static_cast<DWORD>(serial); }
    BOOL GetName(char* pBuffer, DWORD* pLength) override { return Called(this).Copy(name, pBuffer, pLength); }
    BOOL GetContainer(void** ppOut, DWORD id) override { return Called(this).Give(parent, ppOut, id); }
    BOOL IsModified() override { return Called(this).isModified; }
    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override
    {
        return Called(this).Copy(displayName, pBuffer, pLength);
    }
    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    UINT GetFrameCount() override { return static_cast<UINT>(nFrames); }
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;
    UINT GetCount() override { return static_cast<UINT>(Called(this).members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD id) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD id) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD id) override
    {
        return Called(this).Give(Named(pszName), ppOut, id);
    }
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD id) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id) override;
    BOOL RemoveAtom(IAtom* pAtom) override { return Called(As(pAtom)).Remove(As(pAtom)); }
    DWORD GetPermissions(IAtom* pAtom) override { return Called(As(pAtom)).permissions; }
    BOOL ValidateName(CString& strName, DWORD dwReserved) override;
    int GetPosition(IImageLink* pLink) override { return Called(this).PositionOf(static_cast<Atom*>(pLink)); }

    static Atom* As(IAtom* pAtom) { return dynamic_cast<Atom*>(pAtom); }

protected:
    void* Find(DWORD id) override;

private:
    Atom& Called(Atom* pAbout); // tells the host, which may be rude
    static BOOL Copy(const std::string& text, char* pBuffer, DWORD* pLength);
    static BOOL Give(Atom* pAtom, void** ppOut, DWORD id);
    static int PositionOf(const Atom* pLink) { return pLink->position; }
    Atom* Named(const char* pszName) const; // the first member of that name
};

using AtomRef = CStubRef<Atom>;
std::string Print(const Atom* pAtom); // "b#3", or "-" for none
