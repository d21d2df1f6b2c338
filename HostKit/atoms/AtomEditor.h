// The atom editor: it knows what the user is working on and passes the views' news on.
#pragma once

#include "HostKit/atoms/ActiveMembers.h"
#include "HostKit/atoms/HandlerRegistry.h"

#include <memory>
#include <string>

class COleDataSource;

namespace hostkit
{

// The frame, as the editor uses it.
class HOSTKIT_API PaneFrame
{
public:
    virtual void AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon) = 0; // copies caption and icon
    virtual void RemovePane(DWORD kind, HWND hWnd) = 0;
    virtual HWND GetMainWindow() const = 0;
    virtual CMenu* CreateContextMenu() = 0; // the caller's; for what is selected
    // A drag has moved objects away: they are about to go from where they were; they are gone. The reason is that for
    // the first one that could not go, empty when all went.
    virtual void OnMoving() = 0;
    virtual void OnMoved(const std::string& reason) = 0;

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
// last; a renaming is asked of the same one. The frame itself is no view. Owned by the host, which outlives
// every reference.
//
// After a drag that has moved objects, those are the active ones for the removal that follows, whatever is selected by
// then; no later than with the next message the selection counts again.
//
// The editor's own IMyErrorInfo tells what the last reading or writing of an archive failed over; there is none when
// all went well.
//
// As it is it carries the kit's own atoms (HostKit/atoms/Atom.h). A host with others overrides ReadArchive and
// WriteActiveObjects, and names a format of its own.
class HOSTKIT_API CAtomEditor : public IAtomEditor
{
public:
    // Under that name atoms travel on the clipboard and in drags.
    explicit CAtomEditor(std::string format = "application/x-hostkit-atoms");
    virtual ~CAtomEditor();
    CAtomEditor(const CAtomEditor&) = delete;
    CAtomEditor& operator=(const CAtomEditor&) = delete;

    void SetFrame(PaneFrame* pFrame) { m_pFrame = pFrame; } // borrowed; NULL: none
    void AddTop(IAtom* pTop);                               // told as created
    void RemoveTop(IAtom* pTop);                            // told as deleted
    void ForgetAtoms();                                     // tells nobody
    int CountReferences() const { return m_nRefs; }         // beside the owner's

    // Has everyone asked or told about an atom, in the container that holds it.
    BOOL Tell(AEStateOperation operation, IAtom* pAtom);

    void AddRef() override { ++m_nRefs; }
    void Release() override { --m_nRefs; }
    void GetInterface(DWORD id, void** out) override;
    const std::string& GetArchiveError() const { return m_archiveError; } // the line of that error; empty without one

    // While one lives, nothing that views tell is passed on, and all that they ask is allowed. For changes of many at
    // once, of which everyone hears afterwards.
    class Silence
    {
    public:
        explicit Silence(CAtomEditor& editor) : m_editor(editor) { ++m_editor.m_nSilent; }
        ~Silence() { --m_editor.m_nSilent; }
        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;

    private:
        CAtomEditor& m_editor;
    };

    DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) override;
    void UnregisterHandler(DWORD cookie) override;
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    CMenu* CreateContextMenu() override { return m_pFrame ? m_pFrame->CreateContextMenu() : nullptr; }
    HWND GetMainWindow() override { return m_pFrame ? m_pFrame->GetMainWindow() : nullptr; }
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override; // stops at the first refusal
    // Offers the active atoms as CopyObjects does. A move is allowed when all of them may go, and is answered when the
    // target has confirmed that it took them all.
    DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) override;
    // All of the archive is checked before its first object is handed out.
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    // All of the active atoms or nothing: then the archive is empty, and the editor's IMyErrorInfo says why.
    BOOL WriteActiveObjects(IArchive* archive) override;
    CLIPFORMAT GetClipboardFormat() override;
    void GetActiveAtom(void** out, DWORD interfaceId) override;

    // Of members that were to be removed: the reason for the first one that is still there; empty when all went.
    virtual std::string WhyStillThere(const ActiveMembers& members) const;

protected:
    // What a derived class adds to drags.
    virtual void OfferMore(COleDataSource&, const ActiveMembers&) {} // data for other programs
    // Both are held: from before a drag until what was moved has gone; while the members that were moved are removed.
    virtual std::shared_ptr<void> BeginDrag() { return nullptr; }
    virtual std::shared_ptr<void> BeginRemoval(const ActiveMembers&) { return nullptr; }
    virtual void TellOfFailedDrag(); // nothing could be written: a box says why

    BOOL NoteArchiveError(std::string line); // FALSE when there is one

private:
    struct Moved
    {
        ActiveMembers members;
        bool bRemoving = false; // whoever dragged them has asked for them
        std::shared_ptr<void> pHeld;
    };

    std::unique_ptr<COleDataSource> MakeDragData(const ActiveMembers& members);
    void BeginMove(ActiveMembers members, std::shared_ptr<void> pHeld);
    void EndMove();
    BOOL EnumMoved(ACTIVEPAIRPROC callback, void* context);
    void Note(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer);
    BOOL TellEntered(IAEStateHandler* pSender, IAtom* pAtom, IAtomContainer* pContainer);
    IAEStateHandler* FindSelectionSource();

    const std::string m_format;
    HandlerRegistry m_handlers;
    PaneFrame* m_pFrame = nullptr;
    std::vector<CStubRef<IAtom>> m_tops;
    CStubRef<IAtom> m_pActive;
    IAtom* m_pEntering = nullptr;             // what handlers are being told of as entered
    IAEStateHandler* m_pLastSender = nullptr; // of a selection; may have unregistered since
    std::shared_ptr<Moved> m_pMoved;          // from the end of a drag until its originals have been removed
    std::string m_archiveError;
    int m_nSilent = 0;
    int m_nRefs = 0;
};

} // namespace hostkit
