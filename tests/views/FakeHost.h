// A host made of nothing but a ledger: atoms, containers, an atom editor and the services that lead to it.
//
// Everything a view asks or tells the editor is written down, in words: "list asks OnAtomSelecting(b in box)".
// Everything the host hands out is counted, so that a test can end with no object alive.
#pragma once

#include "Toolkit/graphics/ImageList.h"
#include "Views/host/host.h"
#include "Views/host/inside/HeldPair.h"
#include "tests/kernel/FakeCounted.h"
#include "tests/kernel/FakeService.h"
#include "tests/support/Ledger.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class FakeContainer;

// An atom with whatever interfaces its members give it.
class FakeAtom : public FakeCounted<FakeAtom>,
                 public virtual IAtom,
                 public IDispAtom,
                 public IAtomIcon,
                 public IAtomThumbnail,
                 public IImageLink,
                 public IMyErrorInfo,
                 public ICharacterLibrary
{
public:
    explicit FakeAtom(std::string strName) : name(std::move(strName)) {}

    std::string name;
    bool nameFails = false;
    bool nameIsEndless = false;             // announces a length that no name has
    std::optional<std::string> displayName; // offers IDispAtom
    bool displayNameFails = false;
    bool hasIcon = false; // offers IAtomIcon
    bool iconFails = false;
    bool iconNeedsTooMuch = false; // memory runs out while it is made
    int nFrames = 0;               // offers IAtomThumbnail when not 0: the left half of the rectangle in blue
    bool thumbFails = false;
    bool isLink = false;    // offers IImageLink
    int position = 0;       // in its phase
    bool isLibrary = false; // offers ICharacterLibrary
    bool isModified = false;
    FakeContainer* parent = nullptr;
    std::function<void()> onAsked; // runs when its name or its icon has been given
    int nNameReads = 0;            // names filled in, lengths asked for not counted
    Ledger* pLedger = nullptr;     // where icons, thumbnails and what a container is asked to do, are written down

    DWORD GetID() override { return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(this)); }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    BOOL IsModified() override { return isModified; }
    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override;
    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    UINT GetFrameCount() override { return static_cast<UINT>(nFrames); }
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;

protected:
    void* Find(DWORD id) override;
    void Write(const std::string& line)
    {
        if (pLedger)
            pLedger->push_back(line);
    }
};

using AtomRef = CStubRef<FakeAtom>;

// A container, and a phase when it is told so. What it is asked to do with members is written down, in words: "box
// removes b".
class FakeContainer : public FakeAtom, public IAtomContainer, public IPhase
{
public:
    using FakeAtom::FakeAtom;

    std::vector<AtomRef> members;
    bool isPhase = false;
    bool isBackward = false; // gives positions with the other sign
    int nMissing = 0;        // members announced beyond those there are
    DWORD permissions = 0;   // for every atom but those named below
    std::map<std::string, DWORD> permissionsFor;
    std::set<std::string> refused;                  // "removes b": what it will not do, in the ledger's words
    std::function<void(const std::string&)> onCall; // runs before it does what the words say

    FakeAtom* Add(FakeAtom* pNew); // takes the one reference of a new atom
    FakeAtom* Add(const std::string& strName) { return Add(new FakeAtom(strName)); }
    AtomRef Remove(FakeAtom* pMember);
    FakeAtom* Named(const std::string& strName) const; // the first member of that name

    UINT GetCount() override { return static_cast<UINT>(members.size()) + static_cast<UINT>(nMissing); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId) override;
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override; // "b" becomes "b (2)" where there is a b
    int GetPosition(IImageLink* pLink) override;

protected:
    void* Find(DWORD id) override; // offers IMyErrorInfo when it refuses something

private:
    bool Does(const std::string& strCall); // writes it down; false when it is refused
};

using ContainerRef = CStubRef<FakeContainer>;

// The editor and its services, installed for as long as the object lives.
class FakeEditor final : public IAtomEditor
{
public:
    Ledger TakeLedger() { return std::exchange(ledger, {}); }
    // Refuse an asking operation, for every atom or for those of a name.
    void Veto(AEStateOperation operation, const std::string& strName = "")
    {
        m_vetoes.insert(NameOf(operation) + strName);
    }
    void Allow() { m_vetoes.clear(); }
    void Install();
    void Uninstall();
    int CountHandlers() const { return static_cast<int>(m_handlers.size()); }
    int CountReferences() const { return m_nReferences; }

    Ledger ledger;
    std::map<IAEStateHandler*, std::string> handlerNames; // in the ledger
    CStubRef<IAtom> active;
    std::vector<views::HeldPair> pairs; // active, as EnumActivePairs and WriteActiveObjects take them
    bool goesOnAfterRefusal = false;    // EnumActivePairs
    bool readsOn = false;               // archives are read from where they stand, and then at their end
    CLIPFORMAT format = 0;
    IAEStateHandler* pSelected = nullptr; // whose atoms are dragged
    HWND hMain = nullptr;
    std::string menu; // the only item of its context menu, with the command 7; none without a text
    std::function<void(AEStateOperation, IAtom*)> onNotify; // runs before the handlers are called

    std::function<void()> onJoin; // runs when a handler has registered or a pane is added

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD, void** out) override { *out = nullptr; }
    DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) override;
    void UnregisterHandler(DWORD cookie) override;
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    CMenu* CreateContextMenu() override;
    HWND GetMainWindow() override { return hMain; }
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override;
    // Drags what pSelected has active then, as a path handle.
    DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) override;
    // An archive is the names of its atoms, each with a line end.
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    BOOL WriteActiveObjects(IArchive* archive) override;
    CLIPFORMAT GetClipboardFormat() override { return format; }
    void GetActiveAtom(void** out, DWORD interfaceId) override;

private:
    BOOL GiveEditor(void* pBuffer, DWORD dwSize, DWORD dwExtra);
    BOOL ShowError(void* pBuffer, DWORD dwSize, DWORD dwExtra);
    static std::string NameOf(AEStateOperation operation);

    FakeService m_editorService{"GetAtomEditorSv", std::bind_front(&FakeEditor::GiveEditor, this)};
    FakeService m_errorService{"ShowErrorSv", std::bind_front(&FakeEditor::ShowError, this)};
    std::map<DWORD, IAEStateHandler*> m_handlers; // by cookie
    std::set<std::string> m_vetoes;
    DWORD m_nLastCookie = 100;
    int m_nReferences = 0;
};

// "b", or "-" for none.
std::string NameOf(IAtom* pAtom);
