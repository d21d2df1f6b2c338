// The control behind WC_LISTVIEW: an owner-data list in icon view.
//
// Every notification may re-enter with other messages, change the count or destroy the window. So whatever
// notifies gives false when the window is gone: nothing of the object may be touched then. And after a
// notification nothing is taken for granted that was known before it.
#pragma once

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/list/ListLabel.h"
#include "Toolkit/controls/list/ListLayout.h"
#include "Toolkit/controls/list/RowStates.h"
#include "Toolkit/controls/list/RubberBand.h"

#include <optional>
#include <utility>

namespace toolkit
{

class ListControl : public ItemControl
{
public:
    explicit ListControl(HWND hWnd) : ItemControl(hWnd, LVS_EDITLABELS, ES_CENTER) {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // From the tracker, which holds the capture while a button is down. Client coordinates.
    void TrackMove(WPARAM keys, CPoint at);
    void AutoScroll();
    void TrackingLost(HWND hTracker);

private:
    // What the owner shows in a row.
    struct Face
    {
        std::string text;
        int image; // -1: none
    };
    struct Label
    {
        std::vector<LabelLine> lines;
        CRect box; // client; holds the lines; empty without one
    };
    struct Hit
    {
        int row; // -1: none
        UINT flags;
    };
    struct Keys
    {
        bool shift, control;
    };
    // A button is down, and it is not yet known whether it will click, drag or draw a rubber band.
    struct Press
    {
        enum class OnRelease
        {
            Nothing,
            SelectOnly,
            Toggle,
            Extend
        };

        int row; // -1: on empty space
        CPoint at;
        ContentPoint content;
        bool right;
        Keys keys;
        OnRelease onRelease;
        bool meansLabel = false; // unless a double click or a drag follows, its release begins the editing
    };

    static constexpr UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

    static Keys KeysDown();

    // Count, pictures and measures.
    LRESULT OnGetItemCount(WPARAM, LPARAM) { return m_rows.Count(); }
    LRESULT OnSetItemCount(WPARAM wParam, LPARAM);
    LRESULT OnSetIconSpacing(WPARAM, LPARAM lParam);
    LRESULT OnArrange(WPARAM, LPARAM);
    void Measure() override;

    // States. The functions that change them notify.
    LRESULT OnGetNextItem(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetSelectedCount(WPARAM, LPARAM) { return m_rows.CountWith(LVIS_SELECTED); }
    LRESULT OnGetItemState(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetItemState(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool ChangeState(int row, UINT state, UINT mask);
    [[nodiscard]] bool ChangeAll(UINT state, UINT mask);
    [[nodiscard]] bool DeselectBut(const RowSet& kept);
    [[nodiscard]] bool Select(const RowSet& rows);
    [[nodiscard]] bool ChangeEach(const RowSet& rows, UINT selected); // LVIS_SELECTED or 0
    [[nodiscard]] bool SelectOnly(int row);                           // and the focus and the anchor
    [[nodiscard]] bool Toggle(int row);                               // and the focus and the anchor
    // Selects what lies between the anchor and the row, as a rectangle or as all rows from one to the other; the rest
    // stays selected only with `add`. The row gets the focus, the anchor stays.
    [[nodiscard]] bool ExtendTo(int row, bool add, bool allBetween = false);
    RowSet RowsOf(const CellBlock& block) const;

    // Scrolling.
    LRESULT OnSize(WPARAM, LPARAM);
    LRESULT OnVScroll(WPARAM wParam, LPARAM);
    LRESULT OnMouseWheel(WPARAM wParam, LPARAM);
    LRESULT OnScroll(WPARAM, LPARAM lParam);
    LRESULT OnEnsureVisible(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTopIndex(WPARAM, LPARAM) { return m_layout.FirstVisibleRow(); }
    LRESULT OnGetCountPerPage(WPARAM, LPARAM) { return m_layout.FullLinesPerPage() * m_layout.Columns(); }
    void Relayout() override { static_cast<void>(LayOut()); }
    [[nodiscard]] bool LayOut();
    [[nodiscard]] bool UpdateScrollBar();
    [[nodiscard]] bool ScrollTo(std::int64_t position);

    // What rows show, and where.
    LRESULT OnHitTest(WPARAM, LPARAM lParam);
    LRESULT OnGetItemRect(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool Hint(RowRange rows);
    std::optional<Face> AskFace(int row);      // of a row hinted; nullopt: the window is gone
    std::optional<Face> HintAndAsk(int row);   // hints the row when it is not known to be
    std::optional<Hit> HitTest(CPoint client); // nullopt: the window is gone
    Label PlaceLabel(int row, const std::string& text) const;

    // Painting.
    LRESULT OnPaint(WPARAM, LPARAM);
    LRESULT OnUpdate(WPARAM wParam, LPARAM);
    [[nodiscard]] bool DrawRows(HDC hdc, const CRect& rcPaint);
    void DrawRow(HDC hdc, int row, const Face& face);
    void DrawPicture(HDC hdc, int row, int image, UINT state);
    void DrawLabel(HDC hdc, const Label& label, UINT state);
    void DrawBand(HDC hdc);
    void Redraw(int row);
    void RedrawStates(UINT states); // the visible rows that have any of them
    CellBlock VisibleCells() const { return m_layout.CellsTouching({CPoint(), m_layout.Client()}); }

    // Mouse.
    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnRButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnRButtonUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDblClk(WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool BeginPress(WPARAM wParam, LPARAM lParam, bool right);
    [[nodiscard]] bool PressRow(Press& press);
    [[nodiscard]] bool PressEmpty(const Press& press);
    [[nodiscard]] bool EndPress(bool right);
    [[nodiscard]] bool StartTracking();
    void EndTracking(); // whatever the button began; notifies nobody
    void BeginDrag();
    void BeginBand();
    [[nodiscard]] bool MoveBand();
    void RedrawBand(const CRect& former, const CRect& present);
    CRect BandRect() const; // client, cut near the client area's edges
    ContentPoint ToContent(CPoint client) const { return {client.x, client.y + m_layout.ScrollPosition()}; }

    // Editing a label in place.
    LRESULT OnEditLabel(WPARAM wParam, LPARAM);
    LRESULT OnMoveEditLabel(WPARAM wParam, LPARAM);
    bool HasItem(LPARAM row) const override { return m_rows.Has(static_cast<int>(row)); }
    bool IsSelected(LPARAM row) const override;
    bool IsPressed() const override { return m_press.has_value(); }
    void CancelPress() override { EndTracking(); }
    void ShowItem(LPARAM row) override;
    void RedrawItem(LPARAM row) override { Redraw(static_cast<int>(row)); }
    CRect FieldBox(LPARAM row, CSize wanted) const override;
    std::optional<std::string> AskLabel(LPARAM row) override;
    void TellLabel(LPARAM row, std::string& text, bool taken) override;

    // Keys and focus.
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM, LPARAM);
    LRESULT OnKillFocus(WPARAM, LPARAM);
    int RowByKey(UINT vkey) const; // where the key moves the focus; -1: nowhere
    [[nodiscard]] bool MoveFocus(int row, bool allBetween);
    [[nodiscard]] bool PressSpace();

    // Notifications. All give false when the window is gone.
    [[nodiscard]] bool TellClick(UINT code, int row, CPoint at) const;
    [[nodiscard]] bool AskChange(int row, UINT oldState, UINT newState, bool* pAllowed) const;
    [[nodiscard]] bool TellChange(int row, UINT oldState, UINT newState) const;

    RowStates m_rows;
    ListLayout m_layout;
    std::optional<CSize> m_spacing; // as set; else it follows from the pictures
    RowRange m_hinted{0, 0};        // announced by the last hint, and not invalid since
    std::optional<Press> m_press;
    std::optional<RubberBand> m_band;
    HWND m_hTracker = nullptr; // while a button is down
    CPoint m_trackedAt;
    bool m_bAutoScrolls = false;
    int m_relayouts = 0; // under way
};

} // namespace toolkit
