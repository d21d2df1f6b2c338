// A host made of nothing but a ledger: an atom editor and the services that lead to it.
//
// Everything a view asks or tells the editor is written down, in words: "list asks OnAtomSelecting(b in box)".
// Everything the host hands out is counted, so that a test can end with no object alive.
#pragma once

#include "tests/support/FakeAtom.h"

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
