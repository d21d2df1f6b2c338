// A host made of nothing but a ledger: atoms, containers, an atom editor and the services that lead to it.
//
// Everything a view asks or tells the editor is written down, in words: "list asks OnAtomSelecting(b in box)".
// Everything the host hands out is counted, so that a test can end with no object alive.
#pragma once

#include "Toolkit/graphics/ImageList.h"
#include "tests/support/HostAtom.h"
#include "tests/support/HostEditor.h"
#include "tests/support/Ledger.h"

#include <functional>
#include <map>
#include <set>

// An atom with whatever interfaces its members give it. What a container is asked to do with members is written down,
// in words: "box removes b".
class FakeAtom : public HostAtom<FakeAtom>, public IMyErrorInfo
{
public:
    using HostAtom::HostAtom;

    bool nameFails = false;
    std::optional<DWORD> announcedLength; // of the name, in place of its own
    bool displayNameFails = false;
    bool iconFails = false;
    bool iconNeedsTooMuch = false; // memory runs out while it is made
    bool thumbFails = false;       // else it is the left half of the rectangle in blue
    std::function<void()> onAsked; // runs when its name or its icon has been given
    int nNameReads = 0;            // names filled in, lengths asked for not counted
    Ledger* pLedger = nullptr;     // where icons, thumbnails and what a container is asked to do, are written down
    int nMissing = 0;              // members announced beyond those there are
    std::map<std::string, DWORD> permissionsFor;    // by the member's name, in place of `permissions`
    std::set<std::string> refused;                  // "removes b": what it will not do, in the ledger's words
    std::function<void(const std::string&)> onCall; // runs before it does what the words say

    using HostAtom::Add;
    FakeAtom* Add(const std::string& strName) { return Add(new FakeAtom(strName)); }
    CStubRef<FakeAtom> Remove(FakeAtom* pMember) { return TakeOut(pMember); }

    DWORD GetID() override { return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(this)); }
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override;
    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;
    UINT GetCount() override { return HostAtom::GetCount() + static_cast<UINT>(nMissing); }
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override; // "b" becomes "b (2)" where there is a b

protected:
    void* Find(DWORD id) override; // offers IMyErrorInfo when something fails

private:
    void Write(const std::string& line)
    {
        if (pLedger)
            pLedger->push_back(line);
    }
    bool Does(const std::string& strCall); // writes it down; false when it is refused
};
using AtomRef = CStubRef<FakeAtom>;

class FakeContainer final : public FakeAtom
{
public:
    explicit FakeContainer(std::string strName) : FakeAtom(std::move(strName)) { isContainer = true; }
};
using ContainerRef = CStubRef<FakeContainer>;

// The editor and its services, installed for as long as the object lives.
class FakeEditor final : public HostEditor
{
public:
    Ledger TakeLedger() { return std::exchange(ledger, {}); }
    // Refuse an asking operation, for every atom or for those of a name.
    void Veto(AEStateOperation operation, const std::string& strName = "")
    {
        m_vetoes.insert(kHostOperations[IndexOf(operation)].pszName + strName);
    }
    void Allow() { m_vetoes.clear(); }
    void Install();
    void Uninstall();

    Ledger ledger;
    std::map<IAEStateHandler*, std::string> handlerNames;   // in the ledger
    bool readsOn = false;                                   // archives are read from where they stand, to their end
    std::function<void(AEStateOperation, IAtom*)> onNotify; // runs before the handlers are called
    std::function<void()> onJoin;                           // runs when a handler has registered or a pane is added

    DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) override;
    void UnregisterHandler(DWORD cookie) override;
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override;
    DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) override;
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    BOOL WriteActiveObjects(IArchive* archive) override;

private:
    IAtom* MakeAtom(const std::string& strName) override;
    void OnDrag() override;
    BOOL ShowError(void* pBuffer, DWORD dwSize, DWORD dwExtra);

    FakeService m_errorService{"ShowErrorSv", std::bind_front(&FakeEditor::ShowError, this)};
    std::set<std::string> m_vetoes;
};

// "b", or "-" for none.
std::string NameOf(IAtom* pAtom);
