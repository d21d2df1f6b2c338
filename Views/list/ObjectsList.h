// CObjectsList: the list view of the members of one atom container.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/controls/list/ListCtrl.h"
#include "Views/host/MemberOrder.h"
#include "Views/host/StateHandler.h"
#include "Views/host/StubRef.h"
#include "Views/list/ListDropTarget.h"

#include <functional>
#include <memory>

class CObjectsListCache;
class IAtomEditor;

namespace views
{
class EditorLink;
class Rows;
struct HeldPair;
} // namespace views

// The base of the list views, which add pictures through the cache hooks.
//
// The control knows only how many rows there are; the view has one atom for each, in display order. Names and
// pictures are read when the control announces the rows it is about to draw, and kept for the rows announced
// last; drawing asks no atom anything. A view registers with the editor while its window lives, unless it is passive: a
// passive view loads and shows rows, but is told nothing, tells and asks nothing, and shows no pane.
//
// A derived class destroys its window in its own destructor, so that its hooks are there when the rows go.
class VIEWS_API CObjectsList : public CListCtrl, public CStateHandler
{
public:
    // What is known of a row that was shown.
    struct CACHEDATA
    {
        DWORD dwTick = 0; // when a hint last touched the row
        int nImage = -1;  // the row's picture in the view's image list
        CString strText;  // the row's text
    };

    // nPaneKind goes to the editor's AddPane and RemovePane; nResourceID is the host's caption string and icon for the
    // pane.
    CObjectsList(UINT nPaneKind, UINT nResourceID, int bPassive);
    ~CObjectsList() override;

    // A child window without extent, not shown yet, with the control identifier 0xE900.
    BOOL Create(CWnd* pParent);
    // Shows the members of an atom that is a container; any other atom empties the view. FALSE for NULL. Does nothing,
    // and says TRUE, without a window.
    BOOL SetRootAtom(IAtom* pRoot);
    // How the members of what is shown next stand (MOF_*, Views/host/MemberOrder.h). What is created later is appended.
    void SetMemberOrder(UINT nOrder);
    // Which members of what is shown next become rows; empty: all. What is created later becomes one in any case.
    void SetMemberFilter(std::function<bool(IAtom* pAtom)> isShown) { m_isShown = std::move(isShown); }
    // From now on an atom that is announced comes to its place in the order. Else it comes last, whatever its name.
    void PlaceNewAtoms() { m_bPlacesNew = true; }
    // Registered when the window is made. A host that has a target of its own revokes this one.
    CListDropTarget& GetDropTarget() { return m_dropTarget; }

protected:
    // The hooks come first: they follow the list control's own virtual operations.
    //
    // Called once when a row's record leaves the cache: evicted, its row removed, its atom changed, or the view
    // emptied. pData is a copy of the record. pAtom and pContainer are the row's, or both NULL when the row is no more.
    virtual void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) = 0;
    // Called once when a row enters the cache, with strText set and before the record is stored: sets nImage, leaves
    // strText alone.
    virtual void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) = 0;
    // Called last when the view is emptied: every record is uncached, the rows are gone.
    virtual void OnClearContext() {}
    // The atom could not be given the name that the user has typed in place of its label; the field has gone, and the
    // reason has been told. Does nothing here.
    virtual void OnNameRefused(IAtom*, LPCSTR /*pszTyped*/) {}

public:
    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomDeselected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomRename(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override;

protected:
    // How many rows it remembers, unless more were announced at once; 1024, and no more than that in any case.
    void SetCacheLimit(int nRows) { m_nCacheLimit = nRows; }
    void ForgetCache(); // every row is uncached, and cached again when it is next announced

    // The address of an OBJPAIR with the row's atom and container, borrowed, good until the next call; 0 when there
    // is no such row or no atom in it.
    unsigned long GetItemData(int nItem) const;

    int GetCachedImage(int nItem) const; // as OnCacheItem has set it; -1 for a row that is not cached

    // Comparators for qsort over IAtom pointers: image links of one phase by their positions in it, all others by
    // name without regard to case; NULL comes last. CompareFunc1 says 1 when the first sorts after the second, else
    // 0. A name that cannot be read is the one that was read last in its place.
    static int CompareFunc(const void* p1, const void* p2);
    static int CompareFunc1(const void* p1, const void* p2);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnDblclk(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnObjectsGetDispinfo(NMLVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnBeginLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnEndLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnBeginDrag(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnItemChanged(NMLISTVIEW* pChange, LRESULT* pResult);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnItemChanging(NMLISTVIEW* pChange, LRESULT* pResult);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnOdFindItem(NMLVFINDITEM* pFind, LRESULT* pResult); // as SetTypeAhead has rows found: by their text
    afx_msg void OnOdCacheHint(NMLVCACHEHINT* pHint, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    friend class CListDropTarget;

    using HELDPAIR = views::HeldPair;

    OBJPAIR* PairAt(int nItem) const; // what GetItemData gives, NULL for 0
    HELDPAIR HoldPair(int nItem) const;
    CStubRef<IAtomContainer> ShareContainer() const { return CStubRef<IAtomContainer>::Share(m_pContainer.Get()); }
    CStubRef<IAtomContainer> ContainerInRow(int nItem) const; // the row's atom, if it is one
    bool IsShown(IAtomContainer* pContainer) const { return pContainer && pContainer == m_pContainer.Get(); }

    bool IsListening() const { return m_bSync && m_hWnd && !m_bClosing; } // to the editor

    static int (*ComparatorFor(UINT nOrder))(const void*, const void*);
    void UpdateIndexes();
    // What m_nLoads is now: while it stays so, nothing else has been shown since.
    unsigned ClearContext();
    void GoToItem(UINT nItem);
    bool LoadMembers(unsigned nLoad); // false: something else has been shown meanwhile
    bool NoteWhileLoading();
    void ShowPane();
    void RemovePane();
    void RemoveRow(int nItem);
    void ReloadContainer(IAtomContainer* pContainer);

    bool CacheRow(int nItem);
    bool ReserveRecord();                                     // false without memory, which the user has been told
    bool AwaitsRecord(int nItem, const HELDPAIR& pair) const; // the row is still the pair's and not cached
    bool ReadText(IAtom* pAtom, CString& strText);
    void EvictOne();
    void UncacheRow(int nItem);
    void UncacheAll();
    int FindCachedRow(IAtom* pAtom) const; // by identity, in the cache's order; -1: none
    void RekeyCache(int nRemoved);
    int InsertRow(IAtom* pAtom); // -1 without memory, which the user has been told

    void MirrorSelection(IAtom* pAtom, IAtomContainer* pContainer, bool bSelected);
    void SetAllSelected(bool bSelected);
    void ClearSelection();
    void SelectRow(int nItem); // and give it the focus; nothing for -1
    void AnnounceSelection();
    void PostButtonUp();
    void MoveLabelEdit(int nItem); // the row whose label is being edited is that one now, -1: gone

    CStubRef<IAtomContainer> m_pContainer; // what is shown; empty when nothing is
    const std::unique_ptr<views::Rows> m_pRows;
    std::unique_ptr<CObjectsListCache> m_pCache, m_pSpareCache; // the other one serves when rows are re-keyed
    mutable OBJPAIR m_pair{};                                   // what GetItemData gives
    int m_nCacheFrom = 0, m_nCacheTo = 0;                       // the last hint's rows
    int m_nCacheLimit = 1024;
    // Does the view react? FALSE before there is a window and while the view itself is calling the editor.
    BOOL m_bSync = FALSE;
    const UINT m_nPaneKind;
    const UINT m_nResourceID;
    UINT m_nOrder = MOF_BYNAME;
    std::function<bool(IAtom*)> m_isShown; // or empty
    const std::unique_ptr<views::EditorLink> m_pEditor;
    CString m_strEdited; // the name that is being edited in place of a label
    CListDropTarget m_dropTarget;
    BOOL m_bPaneShown = FALSE;
    bool m_bPlacesNew = false;
    bool m_bClosing = false;        // the window is being destroyed: nothing is shown any more
    bool m_bLoading = false;        // the container is being asked for its members
    bool m_bMembersChanged = false; // while they are read
    unsigned m_nLoads = 0;          // how often the view has been emptied
    int m_nEdited = -1;             // the row whose label is being edited
};
