// The control behind WC_TREEVIEW.
//
// Every notification may re-enter with other messages, delete items or destroy the window. So whatever notifies gives
// false when the window is gone: nothing of the object may be touched then. Across a notification an item is kept as a
// handle and looked up again, and nothing is taken for granted that was known before it.
#pragma once

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/tree/TreeItems.h"
#include "Toolkit/controls/tree/TreeLayout.h"

#include <optional>
#include <string>

namespace toolkit
{

class TreeControl : public ItemControl
{
public:
    explicit TreeControl(HWND hWnd) : ItemControl(hWnd, TVS_EDITLABELS, ES_LEFT) {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // What the owner shows in an item; as far as it was asked for.
    struct Face
    {
        std::string text;
        int image = -1, selectedImage = -1; // -1: none
        bool hasChildren = false;
    };
    struct Hit
    {
        HTREEITEM hItem = nullptr;
        UINT flags = TVHT_NOWHERE;
    };
    // A button is down on an item's picture or label, or beside every item, and it is not yet known whether it will
    // click or drag. What is pressed looks selected.
    struct Press
    {
        Hit hit;
        CPoint at;
        bool right;
        bool meansLabel = false; // unless a double click or a drag follows, its release begins the editing
    };
    // The labels typed for, and when the last letter came.
    struct Search
    {
        std::string text;
        DWORD at = 0;
    };

    // Life and looks of the whole.
    LRESULT OnDestroy(WPARAM, LPARAM);
    LRESULT OnStyleChanged(WPARAM, LPARAM);
    LRESULT OnGetIndent(WPARAM, LPARAM) { return TreeLayout::kIndent; }
    LRESULT OnGetItemHeight(WPARAM, LPARAM) { return m_layout.RowHeight(); }
    void Measure() override;

    // Items: making, changing, asking.
    LRESULT OnInsertItem(WPARAM, LPARAM lParam);
    LRESULT OnGetItem(WPARAM, LPARAM lParam);
    LRESULT OnSetItem(WPARAM, LPARAM lParam);
    LRESULT OnGetItemState(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetCount(WPARAM, LPARAM) { return m_items.Count(); }
    LRESULT OnGetNextItem(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool Insert(const TVINSERTSTRUCT& insert, HTREEITEM& hNew);
    ItemIndex Make(const TVINSERTSTRUCT& insert, ItemIndex parent); // at the end for TVI_SORT; kNoItem: no room
    int FindPlace(ItemIndex parent, HTREEITEM hInsertAfter) const;
    [[nodiscard]] bool ShowPlaced(ItemIndex item, ItemIndex parent);
    void Assign(ItemIndex item, const TVITEM& from);
    void AssignRest(ItemIndex item, const TVITEM& from); // than what it shows
    void SetState(ItemIndex item, UINT state, UINT mask);
    void CountDropMark(ItemIndex item);
    ItemIndex Neighbour(UINT code, HTREEITEM hItem) const;
    int RowAbove(ItemIndex item) const;

    // Sorting. The place is the one before the first child whose label is greater. A parent is NULL for the root.
    static bool NeedsOrder(UINT message, WPARAM wParam);
    void Gather(ItemIndex item, ItemIndex parent, bool withFormer); // its sibling before it is gathered already
    [[nodiscard]] bool Settle() { return m_unsettled.empty() || SettleGathered(); }
    [[nodiscard]] bool SettleGathered();
    [[nodiscard]] bool SettleBelow(HTREEITEM hParent);
    [[nodiscard]] bool SettleEach(const std::vector<HTREEITEM>& gathered);
    [[nodiscard]] bool SettleOne(HTREEITEM hItem);
    std::vector<HTREEITEM> GatheredBelow(ItemIndex parent) const;
    [[nodiscard]] bool FindSortedPlace(HTREEITEM hNew, HTREEITEM hParent, int& place);
    [[nodiscard]] bool Bisect(const std::string& label, HTREEITEM hNew, HTREEITEM hParent, int& place);
    [[nodiscard]] bool LookThrough(const std::string& label, HTREEITEM hNew, HTREEITEM hParent, int& place);
    LRESULT OnSortChildren(WPARAM, LPARAM lParam);
    LRESULT OnSortChildrenCB(WPARAM, LPARAM lParam);
    LRESULT OnArrangeChildren(WPARAM, LPARAM lParam);
    void DoubtOrder(ItemIndex parent);
    [[nodiscard]] bool SortByLabel(HTREEITEM hParent, int settled, bool& done);
    [[nodiscard]] bool Rearrange(ItemIndex parent, const std::vector<ItemIndex>& former,
                                 const std::vector<ItemIndex>& order, ChildOrder known);

    // Deleting.
    LRESULT OnDeleteItem(WPARAM, LPARAM lParam);
    [[nodiscard]] bool DeleteBranch(HTREEITEM hTop);
    [[nodiscard]] bool DeleteChildren(ItemIndex parent);
    [[nodiscard]] bool MoveSelectionOutOf(ItemIndex item);
    [[nodiscard]] bool Remove(HTREEITEM hItem); // a leaf that was announced
    bool IsGoing(ItemIndex item) const { return m_nDeleting > 0 && m_items.Goes(item); }

    // Selection and drop highlight.
    LRESULT OnSelectItem(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool Select(HTREEITEM hItem, UINT cause, bool* pDone = nullptr);
    bool MaySelect(HTREEITEM hItem) const;
    void SetCaret(HTREEITEM hItem); // tells nobody

    // Expanding.
    LRESULT OnExpand(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool Expand(HTREEITEM hItem, UINT code, UINT cause, bool* pChanged = nullptr);
    [[nodiscard]] bool ShowChildren(HTREEITEM hItem, bool expanded, UINT cause, bool& changed);
    [[nodiscard]] bool ExpandAncestors(HTREEITEM hItem, bool* pExpanded = nullptr);
    [[nodiscard]] bool ExpandBranch(HTREEITEM hItem);

    // Scrolling.
    LRESULT OnSize(WPARAM, LPARAM);
    LRESULT OnVScroll(WPARAM wParam, LPARAM);
    LRESULT OnHScroll(WPARAM wParam, LPARAM);
    LRESULT OnMouseWheel(WPARAM wParam, LPARAM);
    LRESULT OnEnsureVisible(WPARAM, LPARAM lParam);
    LRESULT OnGetVisibleCount(WPARAM, LPARAM) { return m_layout.FullRows(); }
    // From that row on; keeps the item at the top where it is, as long as that is not the first row.
    [[nodiscard]] bool RowsChanged(int from);
    void Relayout() override { static_cast<void>(LayOut()); }
    [[nodiscard]] bool LayOut();
    [[nodiscard]] bool UpdateBarAtSide(int height);
    [[nodiscard]] bool UpdateBarBelow();
    [[nodiscard]] bool UpdateBar(int nBar, const SCROLLINFO& info);
    [[nodiscard]] bool ScrollToRow(int row);
    [[nodiscard]] bool ScrollToX(int x);
    [[nodiscard]] bool ScrollIntoView(HTREEITEM hItem);
    [[nodiscard]] bool Reveal(HTREEITEM hItem, bool* pExpanded = nullptr); // expands ancestors and scrolls
    void KeepPlace();                                                      // whatever has come to lie there
    void FollowPlace(); // the window shows another one: all is drawn anew
    void ForgetWidth();

    // Places.
    LRESULT OnGetItemRect(WPARAM wParam, LPARAM lParam);
    LRESULT OnHitTest(WPARAM, LPARAM lParam);
    [[nodiscard]] bool HitTest(CPoint client, Hit& hit);
    [[nodiscard]] bool HitTestRow(CPoint client, int row, Hit& hit);
    UINT Outside(CPoint client) const; // TVHT_ABOVE and its like; 0 inside
    bool HasLinesAt(int level) const { return level > 0 || Is(TVS_LINESATROOT); }
    bool HasButtonAt(int level) const { return Is(TVS_HASBUTTONS) && HasLinesAt(level); }
    FontStyle FontOf(ItemIndex item) const;
    int TextWidth(ItemIndex item, const std::string& text) const;

    // Painting.
    LRESULT OnPaint(WPARAM, LPARAM);
    // How wide the content is in these rows, and whether they were all that are in sight.
    [[nodiscard]] bool DrawRows(HDC hdc, const CRect& rcPaint, int& width, bool& complete);
    [[nodiscard]] bool TakeWidth(int width, bool complete);
    int DrawRow(HDC hdc, int row, ItemIndex item, const Face& face); // the label's right end, in the content
    void DrawLines(HDC hdc, int row, int level, ItemIndex item) const;
    void DrawButton(HDC hdc, const CRect& slot, bool expanded) const;
    void DrawPicture(HDC hdc, CPoint at, ItemIndex item, const Face& face) const;
    void DrawLabel(HDC hdc, const CRect& box, ItemIndex item, const std::string& text) const;
    enum class Mark
    {
        None,
        Grey,
        Full
    };
    Mark MarkOf(ItemIndex item) const;
    void Redraw(HTREEITEM hItem);
    void RedrawFrom(int row); // and all below it

    // Mouse.
    LRESULT OnLButtonDown(WPARAM, LPARAM lParam);
    LRESULT OnLButtonUp(WPARAM, LPARAM);
    LRESULT OnLButtonDblClk(WPARAM, LPARAM lParam);
    LRESULT OnRButtonDown(WPARAM, LPARAM lParam);
    LRESULT OnRButtonUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnMouseMove(WPARAM wParam, LPARAM lParam);
    LRESULT OnCaptureChanged(WPARAM, LPARAM);
    [[nodiscard]] bool BeginPress(const Hit& hit, CPoint at, bool right);
    [[nodiscard]] bool Focus() { return TakeFocus(), IsAlive(); }
    [[nodiscard]] bool EndPress(); // and gives the capture back
    void BeginDrag();

    // Editing a label in place.
    LRESULT OnEditLabel(WPARAM, LPARAM lParam) { return EditLabel(lParam, true); }
    bool HasItem(LPARAM item) const override;
    bool IsSelected(LPARAM item) const override { return reinterpret_cast<HTREEITEM>(item) == m_hCaret; }
    bool IsPressed() const override { return m_press.has_value(); }
    void CancelPress() override { static_cast<void>(EndPress()); }
    void ShowItem(LPARAM item) override { static_cast<void>(Reveal(reinterpret_cast<HTREEITEM>(item))); }
    void RedrawItem(LPARAM item) override { Redraw(reinterpret_cast<HTREEITEM>(item)); }
    CRect FieldBox(LPARAM item, CSize wanted) const override;
    std::optional<std::string> AskLabel(LPARAM item) override;
    void TellLabel(LPARAM item, std::string& text, bool taken) override;
    HTREEITEM Edited() { return Labels().Field() ? reinterpret_cast<HTREEITEM>(Labels().Item()) : nullptr; }
    [[nodiscard]] bool CancelLabelWithin(HTREEITEM hTop); // which is about to be deleted

    // Keys and focus.
    LRESULT OnSetFocus(WPARAM, LPARAM);
    LRESULT OnKillFocus(WPARAM, LPARAM);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnChar(WPARAM wParam, LPARAM);
    [[nodiscard]] bool DoKey(UINT vkey, bool& handled);
    [[nodiscard]] bool ScrollByKey(UINT vkey, bool& handled);
    [[nodiscard]] bool MoveTo(ItemIndex item)
    {
        return item == kNoItem || Select(m_items.HandleOf(item), TVC_BYKEYBOARD);
    }
    int RowByKey(UINT vkey) const;
    bool IsOpen(ItemIndex item) const;
    [[nodiscard]] bool SearchFor(const std::string& letter);
    [[nodiscard]] bool FindLabel(std::string prefix, bool afterCaret, HTREEITEM& hFound);

    // Notifications. All give false when the window is gone.
    [[nodiscard]] bool TellSelection(UINT code, HTREEITEM hOld, HTREEITEM hNew, UINT cause, LRESULT* pAnswer) const;
    [[nodiscard]] bool TellItem(UINT code, HTREEITEM hItem, UINT action, LRESULT* pAnswer = nullptr) const;
    // Fills in the parts asked for (TVIF_*); none of them when the item is gone.
    [[nodiscard]] bool AskFace(HTREEITEM hItem, UINT parts, Face& face);
    [[nodiscard]] bool AskOwner(HTREEITEM hItem, UINT parts, Face& face);
    static UINT PartsToAsk(const TreeFace& item, UINT parts);
    TVITEM Describe(HTREEITEM hItem) const;

    TreeItems m_items;
    TreeLayout m_layout;
    HTREEITEM m_hCaret = nullptr;
    HTREEITEM m_hTop = nullptr;         // in the top row, as the window shows it
    int m_nLeft = 0;                    // the content's x at the left edge, likewise
    std::vector<HTREEITEM> m_unsettled; // whose last children are gathered
    int m_nSettling = 0;                // settling under way
    int m_nDropMarks = 0;               // items with TVIS_DROPHILITED
    int m_nSelecting = 0;               // changes of the selection under way
    int m_nDeleting = 0;                // deletions under way
    int m_nRelayouts = 0;               // under way, and of scroll bars
    std::optional<Press> m_press;
    Search m_search;
    bool m_bWidthStale = false;  // what made the content as wide as it is may be gone
    bool m_bCharIsTaken = false; // the key that is down was a command, or its owner kept it from the search
};

} // namespace toolkit
