// The tree as the frame uses it.
#pragma once

#include "Editor/views/DropTargets.h"
#include "Editor/views/NameField.h"
#include "Editor/work/Questions.h"
#include "Views/tree/ObjectsTree.h"

namespace editor
{

class CContainer;
class CMember;

// A library on disk may be of any size, or a ring of links. So a folder is read when its item is first expanded, or
// when something in it is opened; until then a look into it, no longer than it takes to find the first member, tells
// whether it can be expanded; on a slow disk that is told when it is known.
class CEditorTree : public CObjectsTree
{
public:
    // `pressed`: a mouse button, on the tree.
    CEditorTree(DropFailed dropFailed, DropRefused dropRefused, std::function<void()> pressed);
    ~CEditorTree() override { DestroyWindow(); }

    std::vector<std::string> ExpandedPaths(std::size_t nMost) const; // the outer ones first
    void ExpandAtom(IAtom* pAtom);                                   // nothing when it is not shown or has no members
    // The nearest sibling in that direction (-1, 1) that is no container; empty where there is none.
    CStubRef<IAtom> Beside(IAtom* pAtom, int nStep) const;
    CStubRef<IAtomContainer> ContainerAt(CPoint client) const; // the item's, if it is one

    // Members that are new on the disk come, too.
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    // Only its own row is drawn anew: each picture that has been read is told of, and no other label changes with it.
    BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer*) override { return RefreshItem(pAtom); }
    // The focus stays where the user has opened something.
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override; // the pane has the edges
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnGetDispInfo(TVDISPINFO* pInfo) override;
    void OnNameRefused(IAtom* pAtom, LPCSTR pszTyped) override { m_nameField.Refused(pAtom, pszTyped); }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnItemExpanding(NMTREEVIEW* pChange, LRESULT* pResult);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    IAtom* AtomOf(HTREEITEM hItem) const; // borrowed; NULL: none
    bool MayHoldAny(CContainer& container);
    void ShowItemOf(CMember* pMember);
    void UpdateMembers(HTREEITEM hItem, IAtomContainer* pContainer);

    CEditorTreeTarget m_target;
    NameField m_nameField;
    const std::function<void()> m_pressed;
    std::map<const CContainer*, CStubRef<CContainer>> m_asked; // whose answers are waited for
    Questions m_questions;
    UINT m_nMostItems = ~0u; // with so many items nothing more is read
};

} // namespace editor
