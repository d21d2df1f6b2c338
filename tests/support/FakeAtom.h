// The atoms of the made-up hosts, of tests and of the walk.
#pragma once

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Surface.h"
#include "tests/kernel/FakeCounted.h"
#include "tests/support/HostEditor.h"
#include "tests/support/Ledger.h"

#include <functional>
#include <map>
#include <set>

class FakeAtom;
using AtomRef = CStubRef<FakeAtom>;

// An atom with whatever interfaces its traits give it. What a container is asked to do with members is written down,
// in words: "box removes b".
class FakeAtom : public HostTraits,
                 public FakeCounted<FakeAtom>,
                 public IAtomContainer,
                 public IPhase,
                 public IDispAtom,
                 public IAtomIcon,
                 public IAtomThumbnail,
                 public IImageLink,
                 public ICharacterLibrary,
                 public IMyErrorInfo
{
public:
    using HostTraits::HostTraits;

    int serial = 0; // of those whose host counts them
    FakeAtom* parent = nullptr;
    std::vector<AtomRef> members;

    bool nameFails = false;
    std::optional<DWORD> announcedLength; // of the name, in place of its own
    bool displayNameFails = false;
    bool iconFails = false;
    bool iconNeedsTooMuch = false; // memory runs out while it is made
    toolkit::Pixel iconColor = 0xFF00FF00;
    bool thumbFails = false; // else it is the left half of the rectangle in this color
    COLORREF thumbColor = RGB(0, 0, 255);
    std::function<void()> onAsked; // runs when its name or its icon has been given
    int nNameReads = 0;            // names filled in, lengths asked for not counted
    Ledger* pLedger = nullptr;     // where icons, thumbnails and what a container is asked to do, are written down
    int nMissing = 0;              // members announced beyond those there are
    std::map<std::string, DWORD> permissionsFor;    // by the member's name, in place of `permissions`
    std::set<std::string> refused;                  // "removes b": what it will not do, in the ledger's words
    std::function<void(const std::string&)> onCall; // runs before it does what the words say

    static FakeAtom* As(IAtom* pAtom) { return dynamic_cast<FakeAtom*>(pAtom); }
    FakeAtom* Add(FakeAtom* pNew); // takes the one reference of a new atom
    FakeAtom* Add(const std::string& strName) { return Add(Make(strName)); }
    virtual AtomRef Remove(FakeAtom* pMember);         // empty when it is none
    FakeAtom* Named(const std::string& strName) const; // the first member of that name
    std::string Label() const { return displayName.value_or(name); }
    std::string TreeLabel() const { return Label() + (isModified ? " *" : ""); }

    DWORD GetID() override { return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(this)); }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD id) override { return Called().Give(parent, ppOut, id); }
    BOOL IsModified() override { return Called().isModified; }
    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override;
    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    UINT GetFrameCount() override { return static_cast<UINT>(nFrames); }
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;
    UINT GetCount() override { return static_cast<UINT>(Called().members.size()) + static_cast<UINT>(nMissing); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD id) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD id) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD id) override;
    int GetPosition(IImageLink* pLink) override;
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD id) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override; // "b" becomes "b (2)" where there is a b

protected:
    virtual FakeAtom* Make(const std::string& strName) const { return new FakeAtom(strName); }
    virtual void OnCalled(FakeAtom*) {} // before it answers; about that atom, itself or another one

    FakeAtom& Called() { return OnCalled(this), *this; }
    static BOOL Give(FakeAtom* pAtom, void** ppOut, DWORD id);
    void* Find(DWORD id) override; // offers IMyErrorInfo when something fails

private:
    void Write(const std::string& line);
    bool Does(const std::string& strCall, FakeAtom* pAbout); // writes it down; false when it is refused
};

class FakeContainer final : public FakeAtom
{
public:
    explicit FakeContainer(std::string strName) : FakeAtom(std::move(strName)) { isContainer = true; }
};
using ContainerRef = CStubRef<FakeContainer>;

std::string NameOf(IAtom* pAtom); // "b", or "-" for none
