// The atom editor: it knows what the user is working on and passes the views' news on.
#pragma once

#include "Editor/services/HandlerRegistry.h"

namespace editor
{

// The frame, as the editor uses it.
class PaneFrame
{
public:
    virtual void AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon) = 0; // copies caption and icon
    virtual void RemovePane(DWORD kind, HWND hWnd) = 0;
    virtual HWND GetMainWindow() const = 0;

protected:
    ~PaneFrame() = default;
};

// The active atom follows the broadcasts: the one selected last; the one entered; the container when the active
// atom is deselected or removed, or when all members are meant.
//
// Tops of hierarchies are announced to all handlers, and to each that registers later; what is below them is read by
// those who show it.
//
// What is selected is asked of one view: the one that has the focus, else the one that announced a selection
// last; a renaming is asked of the same one. The frame itself is no view. Owned by the application, which outlives
// every reference.
//
// The editor's own IMyErrorInfo tells what the last reading or writing of an archive came to grief over, also when
// a container did not take an object that was read; there is none when all went well.
class CAtomEditor final : public IAtomEditor
{
public:
    CAtomEditor() = default;
    CAtomEditor(const CAtomEditor&) = delete;
    CAtomEditor& operator=(const CAtomEditor&) = delete;

    void SetFrame(PaneFrame* pFrame) { m_pFrame = pFrame; } // borrowed; NULL: none
    void AddTop(IAtom* pTop);                               // told as created
    void RemoveTop(IAtom* pTop);                            // told as deleted
    void ForgetAtoms();                                     // tells nobody
    int CountReferences() const { return m_nRefs; }         // beside the owner's

    void AddRef() override { ++m_nRefs; }
    void Release() override { --m_nRefs; }
    void GetInterface(DWORD id, void** out) override;
    const std::string& GetArchiveError() const { return m_archiveError; } // the line of that error; empty without one

    DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) override;
    void UnregisterHandler(DWORD cookie) override;
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    CMenu* CreateContextMenu() override { return nullptr; }
    HWND GetMainWindow() override { return GetFrameWindow(); }
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override; // stops at the first refusal
    DROPEFFECT DoDragDrop(DWORD, DWORD) override { return 0; }
    // All of the archive is checked before its first object is handed out.
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    // All of the active atoms or nothing: then the archive is empty, and the editor's IMyErrorInfo says why.
    BOOL WriteActiveObjects(IArchive* archive) override;
    CLIPFORMAT GetClipboardFormat() override;
    void GetActiveAtom(void** out, DWORD interfaceId) override;

private:
    void Note(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer);
    BOOL TellEntered(IAEStateHandler* pSender, IAtom* pAtom, IAtomContainer* pContainer);
    IAEStateHandler* FindSelectionSource() const;
    HWND GetFrameWindow() const { return m_pFrame ? m_pFrame->GetMainWindow() : nullptr; }
    BOOL NoteArchiveError(std::string line); // FALSE when there is one

    HandlerRegistry m_handlers;
    PaneFrame* m_pFrame = nullptr;
    std::vector<CStubRef<IAtom>> m_tops;
    CStubRef<IAtom> m_pActive;
    IAtom* m_pEntering = nullptr;             // what handlers are being told of as entered
    IAEStateHandler* m_pLastSender = nullptr; // of a selection; may have unregistered since
    std::string m_archiveError;
    int m_nRefs = 0;
};

} // namespace editor
