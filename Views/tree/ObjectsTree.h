// CObjectsTree: the tree view of the atoms that the editor announces.
#pragma once

#include "Toolkit/controls/tree/TreeCtrl.h"
#include "Toolkit/graphics/ImageList.h"
#include "Views/host/StateHandler.h"
#include "Views/host/StubRef.h"

#include <memory>
#include <unordered_set>
#include <vector>

class CTreeDropTarget;
class IAtomEditor;
class IAtomIcon;

namespace views
{
class EditorLink;
class TreeIconSlots;
class TreeRecords;
struct GiveBackRecord;
struct HeldPair;
struct MemberKeys;
struct TreeRecord;
} // namespace views

// One item for each atom announced; an announced container's members become items below it at once, and theirs below
// them.
//
// The control keeps no label, picture or number of children: it asks each time it draws, so that new names and marks
// show by themselves. The members of an announced container stand in the order of their names, image links in the
// order of their phase; an atom announced later takes the place its label gives it.
//
// An atom may be announced twice and has two items then; the later one is the one that is selected, refreshed and
// removed. An atom announced below itself is ignored: such a tree would have no end.
//
// A passive tree shows what is announced like any other, but has no pane, and its selection is its own affair.
class VIEWS_API CObjectsTree : public CTreeCtrl, public virtual CStateHandler
{
public:
    // Behind an item, whose lParam is its address; owned by the tree.
    struct TREEITEMDATA
    {
        CStubRef<IAtom> pAtom;
        CStubRef<IAtomContainer> pContainer; // as announced; may be empty
    };

    CObjectsTree() : CObjectsTree(FALSE) {}
    explicit CObjectsTree(int bPassive);
    ~CObjectsTree() override;

    // A child window without extent, not shown yet, with the control identifier 0xE900.
    BOOL Create(CWnd* pParentWnd);
    // Selects the atom's item, if it has one. FALSE for NULL.
    BOOL SetRootAtom(IAtom* pAtom);
    // The selected item's atom as the asked interface, with a reference. FALSE, and *ppOut is NULL, when nothing is
    // selected or the atom does not have it; FALSE for ppOut NULL.
    BOOL GetSelectedAtom(void** ppOut, DWORD dwInterfaceId);
    // How members stand (MOF_*, Views/host/MemberOrder.h); those that are shown, too, at n log n for each container. To
    // be set anew for a new window.
    void SetMemberOrder(UINT nOrder);
    // Registered when the window is made. A host that has a target of its own revokes this one.
    CTreeDropTarget& GetDropTarget() { return *m_pDropTarget; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    // The hooks follow the tree control's own virtual operations.
    //
    // Called with each display request, complete as it is answered, and may change the answer. Not called when the
    // atom's name could not be read. Does nothing here.
    virtual void OnGetDispInfo(TVDISPINFO*) {}
    // The atom could not be given the name that the user has typed in place of its label; the field has gone, and the
    // reason has been told. Does nothing here.
    virtual void OnNameRefused(IAtom*, LPCSTR /*pszTyped*/) {}

public:
    // TRUE when the atom is shown now. Costs n log n for an atom with n members, log n for one more among n siblings
    // in the order of their labels.
    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    // Always TRUE. Removes the atom with all below it, unless it comes with a container that is not shown. For atom
    // NULL, removes those of the container's items whose atoms it no longer holds; costs one question for each.
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    // TRUE when the atom is shown. Everything in sight is drawn anew at once: other labels may change with the atom's.
    BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override; // always TRUE; selects its item, if any
    BOOL OnAtomRename(IAtom* pAtom, IAtomContainer* pContainer) override;  // for atom NULL only
    // The tree has one pair or none; with none *pCount stays as it was.
    BOOL OnGetActivePairs(OBJPAIR* pPairs, DWORD* pCount) override;

protected:
    // For a derived class whose host has more than it wants read at once; before anything is announced. From then on a
    // container is asked for its members only when ShowMembers says so, those announced below one that was not
    // asked are ignored, and whether it has a button is left to OnGetDispInfo.
    void ShowMembersOnDemand() { m_bOnDemand = true; }
    // Members that have no item below the atom's own get one, and all stand in order then. FALSE when the atom is not
    // shown or no container. Costs n log n, or one look at each member when nothing is new.
    BOOL ShowMembers(IAtom* pAtom);
    bool AreMembersShown(HTREEITEM hItem) const;

    // For a derived class whose host tells of every atom that looks different now: the atom's icon is fetched again,
    // and its row alone is drawn anew, with the next paint. FALSE when the atom is not shown.
    BOOL RefreshItem(IAtom* pAtom);

    // The item that shows the atom, the last one if there are several; NULL when none does.
    HTREEITEM GetItem(IAtom* pAtom) const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnObjectsGetDispInfo(TVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnDestroy();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnBeginLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnEndLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnBeginDrag(NMTREEVIEW* pDrag, LRESULT* pResult);
    afx_msg BOOL OnSelChanged(NMTREEVIEW* pChange, LRESULT* pResult);
    afx_msg void OnSelChanging(NMTREEVIEW* pChange, LRESULT* pResult);
    afx_msg BOOL OnItemExpanded(NMTREEVIEW* pChange, LRESULT* pResult);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    friend class CTreeDropTarget;

    using RECORD = views::TreeRecord;
    using RecordHolder = std::unique_ptr<RECORD, views::GiveBackRecord>;
    using HELDPAIR = views::HeldPair;

    BOOL SelectAtom(IAtom* pAtom); // FALSE when it has no item or was refused
    void SyncItems(HTREEITEM hParent, IAtomContainer* pContainer);
    BOOL SetBoldRoot(HTREEITEM hItem, BOOL bBold); // the item and all above it; FALSE for NULL
    // Compares two items' records: image links of one phase by their positions in it, all others by name without
    // regard to case.
    static int MyFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

    bool JoinEditor(HWND hWnd);
    CStubRef<IAtomEditor> EditorToTell() const; // empty without an editor, for a passive tree and for one that closes

    bool IsItem(HTREEITEM hItem) const;      // false for one that is gone
    RECORD* RecordOf(HTREEITEM hItem) const; // NULL for one that is gone, and for a derived class's own
    HELDPAIR HoldPair(HTREEITEM hItem) const;
    CStubRef<IAtomContainer> ContainerInItem(HTREEITEM hItem) const; // the item's atom, if it is one
    std::vector<HTREEITEM> ChildrenOf(HTREEITEM hItem) const;
    std::unordered_set<IAtom*> AtomsBelow(HTREEITEM hItem) const; // right below

    bool IsWithin(HTREEITEM hBranch, HTREEITEM hItem) const; // an item is within its own branch
    bool TakesMember(const RECORD* pParent, IAtom* pAtom) const;
    HTREEITEM AddItem(IAtom* pAtom, IAtomContainer* pContainer, const RECORD* pParent);
    HTREEITEM HandToControl(RECORD* pRecord, HTREEITEM hParent);
    BOOL AddMembers(HTREEITEM hItem, IAtom* pAtom, const std::unordered_set<IAtom*>* pShown = nullptr);
    void NoteMember(HTREEITEM hParent, IAtom* pAtom, HTREEITEM hItem);

    RecordHolder TakeRecord(HTREEITEM hItem);
    void RemoveMembers(HTREEITEM hItem, IAtom* pAtom);
    void RemoveItem(HTREEITEM hItem);
    void RemoveChildren(HTREEITEM hItem);
    void DropItem(HTREEITEM hItem, const RECORD* pRecord);

    void OrderMembers(HTREEITEM hItem, views::MemberKeys& keys);
    void OrderMembersAnew(HTREEITEM hItem);
    bool OrderByLabelAndName(HTREEITEM hItem);
    bool ArrangeByName(HTREEITEM hItem, views::MemberKeys& keys, bool bEqualOnesToo);

    int ImageOf(IAtom* pAtom, const TVITEM& item);
    int IconImage(IAtomIcon* pIcon, HTREEITEM hItem);
    bool AnswerLabel(IAtom* pAtom, TVITEM& item);

    BOOL Notify(AEStateOperation operation, HTREEITEM hItem); // TRUE without an editor or a record, too
    bool MayChangeSelection(const NMTREEVIEW& change);
    void GoOnSelected(HTREEITEM hItem);
    bool AnnounceSelection();

    const std::unique_ptr<views::TreeRecords> m_pRecords;
    views::MemberKeys* m_pFilling = nullptr; // of the item whose members are being read
    const std::unique_ptr<views::TreeIconSlots> m_pIconSlots;
    CImageList m_images;
    int m_nOpenImage = -1;    // for an expanded item with children
    int m_nDefaultImage = -1; // for any other atom without an icon
    CString m_strLabel;       // the label asked for last; the control reads it there until it asks again
    const std::unique_ptr<views::EditorLink> m_pEditor;
    CString m_strEdited; // the name that is being edited in place of a label
    const std::unique_ptr<CTreeDropTarget> m_pDropTarget;
    UINT m_nOrder = 0;        // MOF_*
    bool m_bOnDemand = false; // members become items only when they are asked for
    bool m_bClosing = false;  // the window is being destroyed: nothing new is shown
};
