// What the editor's views take besides atoms: files from other programs. And what they do not take.
#pragma once

#include "Views/list/ListDropTarget.h"
#include "Views/tree/TreeDropTarget.h"

#include <functional>
#include <string>

namespace editor
{

class CEditorList;
class CEditorTree;

// Told once the drag is over, with the reason, of a drop that was not taken as a whole.
using DropFailed = std::function<void(std::string)>;

// Takes the place of the view's own target, and does what that does with atoms; but see SafeEffect. And nothing stays
// highlighted where no drop would go: neither when the drag leaves nor, in a list, over empty space.
class CEditorListTarget final : public CListDropTarget
{
public:
    CEditorListTarget(CEditorList& list, DropFailed failed) : m_list(list), m_failed(std::move(failed)) {} // borrowed

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;

private:
    CEditorList& m_list;
    const DropFailed m_failed;
};

class CEditorTreeTarget final : public CTreeDropTarget
{
public:
    CEditorTreeTarget(CEditorTree& tree, DropFailed failed) : m_tree(tree), m_failed(std::move(failed)) {} // borrowed

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;

private:
    void Highlight(HTREEITEM hItem);

    CEditorTree& m_tree;
    const DropFailed m_failed;
    HTREEITEM m_hHighlighted = nullptr; // by files
};

} // namespace editor
