#pragma once

#include "Toolkit/desktop/DropEffect.h"
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Views/host/IAEStateHandler.h"

class CMenu;
class IArchive;

// Called with each active atom and the container it is in; FALSE refuses.
using ACTIVEPAIRPROC = BOOL (*)(IAtom* pAtom, IAtomContainer* pContainer, void* pContext);
// Called with each object read from an archive; FALSE refuses, and nothing more is read. Whose reference it is, see
// IAtomEditor::ReadArchive.
using ARCHIVEATOMPROC = BOOL (*)(IAtom* pAtom, void* pContext);

// The host's atom editor: it knows what the user is working on, and everyone who wants to hear of it.
//
// Reached through GetAtomEditor, never kept: every operation gets it, uses it and releases it.
class VIEWS_API IAtomEditor : public virtual CStubBaseInterface
{
public:
    virtual void EditorReserved1() {}
    // Adds a view's handler, with the view's window, and returns the cookie that takes it out again. A view is not
    // kept alive by it.
    virtual DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) = 0;
    virtual void UnregisterHandler(DWORD cookie) = 0;
    // Calls the operation on the registered handlers, at once; with sender NULL on every one of them. For
    // PreRenameAtom, PreSaveAtom, OnAtomSelecting and OnAtomDeselecting the answer is FALSE when a handler said
    // FALSE, else TRUE. reserved is 0.
    virtual BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom,
                                IAtomContainer* container, DWORD reserved) = 0;
    // Shows the view's window as a pane of the editor's frame. Caption and icon are lent for the call: an editor that
    // goes on showing them copies them. Either may be empty or NULL.
    virtual void AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon) = 0;
    virtual void RemovePane(DWORD kind, HWND hWnd) = 0;
    virtual void EditorReserved7() {}
    virtual void EditorReserved8() {}
    virtual void EditorReserved9() {}
    virtual void EditorReserved10() {}
    virtual void EditorReserved11() {}
    virtual void EditorReserved12() {}
    virtual CMenu* CreateContextMenu() = 0; // for the current selection; the caller tracks and deletes it
    virtual void EditorReserved14() {}
    virtual void EditorReserved15() {}
    virtual HWND GetMainWindow() = 0; // receives that menu's commands
    virtual void EditorReserved17() {}
    virtual BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) = 0; // FALSE when the callback refused
    // Drags the active atoms until they are dropped; the effect that was performed. reserved is 0.
    virtual DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) = 0;
    virtual void EditorReserved20() {}
    // Reads the objects of an archive one after another, from where the archive stands, which is its first byte
    // whenever a view asks, and hands each to the callback. FALSE when the bytes are no archive of atoms or the
    // callback refused: what it was handed before stays handed.
    //
    // Objects are new ones, in no container. With a context, an object is lent for the call: the editor releases it
    // when the callback has returned, whatever it returned, and a callback that keeps it adds a reference. Without
    // a context (NULL) the object's one reference is the callback's, which releases it once, also when it refuses.
    virtual BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) = 0;
    virtual void EditorReserved22() {}
    // Replaces the archive's bytes by the active atoms, in the order in which EnumActivePairs names them. FALSE when
    // nothing could be stored.
    virtual BOOL WriteActiveObjects(IArchive* archive) = 0;
    virtual CLIPFORMAT GetClipboardFormat() = 0; // under which atoms travel on the clipboard and in drags
    virtual void EditorReserved25() {}
    // The atom the editor is working on, as the asked interface with a reference; NULL when there is none.
    virtual void GetActiveAtom(void** out, DWORD interfaceId) = 0;

protected:
    ~IAtomEditor() = default;
};
