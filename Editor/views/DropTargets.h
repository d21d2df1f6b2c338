// What the editor's views take besides atoms: files from other programs. And what they do not take.
#pragma once

#include "Editor/services/DroppedFiles.h"
#include "Editor/views/FrameDrops.h"
#include "Views/list/ListDropTarget.h"
#include "Views/tree/TreeDropTarget.h"

#include <functional>
#include <string>
#include <utility>

namespace editor
{

class CEditorList;
class CEditorTree;

// Told once the drag is over, with the reason, of a drop that was not taken as a whole.
using DropFailed = std::function<void(std::string)>;
// Told while it goes on, why nothing may be moved to where it is; empty: it may be, or there is no more to say.
using DropRefused = std::function<void(const std::string&)>;

// What a drop would do where the drag was last, at the most what is safe there (SafeEffect). While it stays over the
// same row or item, neither what is dragged nor the container is looked at again, which takes its time when that is
// much; the drop itself looks anew.
class HoveredPlace
{
public:
    template <class Find>
    DROPEFFECT EffectAt(INT_PTR nItem, const CStubRef<IAtomContainer>& pContainer, bool bControl, Find find)
    {
        const bool bSame = m_bKnown && nItem == m_nItem && pContainer.Get() == m_pContainer.Get();
        if (!bSame || bControl != m_bControl) {
            m_effect = SafeEffect(find(), pContainer.Get(), bControl);
            m_bKnown = m_bNew = true;
            m_nItem = nItem;
            m_pContainer = CStubRef<IAtomContainer>::Share(pContainer.Get());
            m_bControl = bControl;
        }
        return m_effect;
    }
    bool TakeNew() { return std::exchange(m_bNew, false); } // has it been looked at since that was asked?
    void Forget() { *this = {}; }

private:
    bool m_bKnown = false, m_bControl = false, m_bNew = false;
    INT_PTR m_nItem = 0;
    CStubRef<IAtomContainer> m_pContainer;
    DROPEFFECT m_effect = DROPEFFECT_NONE;
};

// Takes the place of the view's own target, and does what that does with atoms; but see SafeEffect. And nothing stays
// highlighted where no drop would go: neither when the drag leaves nor, in a list, over empty space. In a list that
// shows a phase what is dropped comes between its frames.
class CEditorListTarget final : public CListDropTarget
{
public:
    CEditorListTarget(CEditorList& list, DropFailed failed, DropRefused refused) // borrowed
        : m_list(list), m_frames(list), m_failed(std::move(failed)), m_refused(std::move(refused))
    {}

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    // Frames that change their places within a phase have been moved by the drop, and nobody is to remove them.
    DROPEFFECT OnDropEx(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropDefault, DROPEFFECT dropList,
                        CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;

protected:
    bool TakesBetweenRows() const override { return m_frames.Phase() != nullptr; }
    BOOL Paste(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect, CPoint point) override;

private:
    CStubRef<IAtomContainer> TargetAt(CPoint point) const;
    DROPEFFECT FindEffect(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    BOOL DropBetween(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point);
    DROPEFFECT FindFrameEffect(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState);

    CEditorList& m_list;
    FrameDrops m_frames;
    const DropFailed m_failed;
    const DropRefused m_refused;
    HoveredPlace m_hovered;  // by atoms
    bool m_bAsFiles = false; // not the atoms that are dragged are to be taken, but their files
};

class CEditorTreeTarget final : public CTreeDropTarget
{
public:
    CEditorTreeTarget(CEditorTree& tree, DropFailed failed, DropRefused refused) // borrowed
        : m_tree(tree), m_failed(std::move(failed)), m_refused(std::move(refused))
    {}

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;

private:
    void Highlight(HTREEITEM hItem);

    CEditorTree& m_tree;
    const DropFailed m_failed;
    const DropRefused m_refused;
    HoveredPlace m_hovered;             // by atoms
    HTREEITEM m_hHighlighted = nullptr; // by files
};

} // namespace editor
