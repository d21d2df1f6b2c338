// How the tree control draws: only the rows that touch what is to be painted.
#include "Toolkit/controls/tree/TreeControl.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{

constexpr BYTE kLine = 96; // of 255
constexpr int kButton = 9; // pixels, square
constexpr int kSign = 5;   // the plus or minus inside

// A rectangle without the pixels at its corners.
void FillRounded(HDC hdc, const CRect& rect, COLORREF color)
{
    FillSolidRect(hdc, {rect.left + 1, rect.top, rect.right - 1, rect.bottom}, color);
    FillSolidRect(hdc, {rect.left, rect.top + 1, rect.left + 1, rect.bottom - 1}, color);
    FillSolidRect(hdc, {rect.right - 1, rect.top + 1, rect.right, rect.bottom - 1}, color);
}

void DrawLine(HDC hdc, const CRect& rect)
{
    BlendRect(hdc, rect, GetSysColor(COLOR_BTNSHADOW), kLine);
}

} // namespace

LRESULT TreeControl::OnPaint(WPARAM, LPARAM)
{
    int width = 0;
    bool complete = false;
    {
        const CPaintDC paint(m_hWnd);
        const HDC hdc = paint;
        const CRect rcPaint = paint.GetPaintRect();
        if (!DrawRows(hdc, rcPaint, width, complete))
            return 0;
    }
    static_cast<void>(TakeWidth(width, complete));
    return 0;
}

// The owner may change the tree while it is asked what to show: then all is painted anew.
bool TreeControl::DrawRows(HDC hdc, const CRect& rcPaint, int& width, bool& complete)
{
    const RowSpan rows = m_layout.RowsTouching(rcPaint);
    const RowSpan shown = m_layout.RowsTouching(CRect(CPoint(), m_layout.Client()));
    const unsigned version = m_items.Version();
    const int top = m_layout.TopRow(), x = m_layout.X();
    const UINT parts =
        TVIF_TEXT | (Images() ? TVIF_IMAGE | TVIF_SELECTEDIMAGE : 0) | (Is(TVS_HASBUTTONS) ? TVIF_CHILDREN : 0);
    complete = rows.first == shown.first && rows.end == shown.end;
    for (int row = rows.first; row < rows.end; ++row) {
        if (!RectVisible(hdc, m_layout.RowRect(row))) {
            complete = false;
            continue;
        }
        const HTREEITEM hItem = m_items.HandleOf(m_items.AtRow(row));
        Face face;
        if (!AskFace(hItem, parts, face))
            return false;
        if (m_items.Version() != version || m_layout.TopRow() != top || m_layout.X() != x) {
            RedrawAll();
            complete = false;
            return true;
        }
        width = std::max(width, DrawRow(hdc, row, m_items.Find(hItem), face));
    }
    return true;
}

int TreeControl::DrawRow(HDC hdc, int row, ItemIndex item, const Face& face)
{
    const int level = m_items.Level(item);
    const int textWidth = TextWidth(item, face.text);
    if (Is(TVS_HASLINES))
        DrawLines(hdc, row, level, item);
    if (face.hasChildren && HasButtonAt(level))
        DrawButton(hdc, m_layout.ButtonSlot(row, level), m_items.IsExpanded(item) && m_items.ChildCount(item) > 0);
    DrawPicture(hdc, m_layout.IconAt(row, level), item, face);
    if (item != m_items.Find(Edited())) // else the field stands there
        DrawLabel(hdc, m_layout.LabelBox(row, level, textWidth), item, face.text);
    return m_layout.RightOf(level, textWidth);
}

// Every sibling is joined to the one before it, the first one to the parent.
void TreeControl::DrawLines(HDC hdc, int row, int level, ItemIndex item) const
{
    const ItemIndex own = item;
    for (; item != kNoItem && HasLinesAt(level); item = m_items.Parent(item), --level) {
        const CRect slot = m_layout.ButtonSlot(row, level);
        const CPoint middle = slot.CenterPoint();
        if (slot.right <= 0 || slot.left >= m_layout.Client().cx)
            continue;
        const bool goesOn = m_items.Next(item) != kNoItem;
        if (item == own) {
            const bool begins = level == 0 && m_items.Previous(item) == kNoItem;
            DrawLine(hdc, {middle.x, begins ? middle.y : slot.top, middle.x + 1, goesOn ? slot.bottom : middle.y});
            DrawLine(hdc, {middle.x + (goesOn ? 1 : 0), middle.y, slot.right, middle.y + 1});
        } else if (goesOn) {
            DrawLine(hdc, {middle.x, slot.top, middle.x + 1, slot.bottom});
        }
    }
}

void TreeControl::DrawButton(HDC hdc, const CRect& slot, bool expanded) const
{
    const CPoint middle = slot.CenterPoint();
    const CRect box(CPoint(middle.x - kButton / 2, middle.y - kButton / 2), CSize(kButton, kButton));
    CRect inside = box;
    inside.DeflateRect(1, 1);
    FillRounded(hdc, box, GetSysColor(COLOR_BTNSHADOW));
    FillSolidRect(hdc, inside, GetSysColor(COLOR_WINDOW));
    const COLORREF ink = GetSysColor(COLOR_3DDKSHADOW);
    FillSolidRect(hdc, CRect(CPoint(middle.x - kSign / 2, middle.y), CSize(kSign, 1)), ink);
    if (!expanded)
        FillSolidRect(hdc, CRect(CPoint(middle.x, middle.y - kSign / 2), CSize(1, kSign)), ink);
}

void TreeControl::DrawPicture(HDC hdc, CPoint at, ItemIndex item, const Face& face) const
{
    const UINT state = m_items[item].state;
    const int image = state & TVIS_SELECTED ? face.selectedImage : face.image;
    ImageList_Draw(Images(), image, hdc, at.x, at.y, ILD_NORMAL);
}

void TreeControl::DrawLabel(HDC hdc, const CRect& box, ItemIndex item, const std::string& text) const
{
    const Mark mark = MarkOf(item);
    CRect ground = box;
    ground.DeflateRect(0, 1); // marked neighbours stay apart
    if (mark != Mark::None && !text.empty())
        FillRounded(hdc, ground, GetSysColor(mark == Mark::Full ? COLOR_HIGHLIGHT : COLOR_BTNFACE));

    SetTextColor(hdc, GetSysColor(mark == Mark::Full ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    SetFontStyle(hdc, FontOf(item));
    const int lineHeight = CurrentTextEngine().LineHeight();
    TextOut(hdc, box.left + TreeLayout::kLabelPadding, box.top + (box.Height() - lineHeight) / 2, text);
}

// What is pressed, or would take what is dragged, stands out alone; the selected item steps back meanwhile.
TreeControl::Mark TreeControl::MarkOf(ItemIndex item) const
{
    const HTREEITEM hItem = m_items.HandleOf(item);
    const HTREEITEM hPressed = m_press && (m_press->hit.flags & TVHT_ONITEM) ? m_press->hit.hItem : nullptr;
    if ((m_items[item].state & TVIS_DROPHILITED) || hItem == hPressed)
        return Mark::Full;
    if (hItem != m_hCaret)
        return Mark::None;
    if (IsFocused())
        return hPressed || m_nDropMarks > 0 ? Mark::Grey : Mark::Full;
    return Is(TVS_SHOWSELALWAYS) ? Mark::Grey : Mark::None;
}

bool TreeControl::TakeWidth(int width, bool complete)
{
    if (m_bWidthStale && complete)
        m_bWidthStale = false;
    else
        width = std::max(width, m_layout.Width());
    if (width == m_layout.Width())
        return true;
    m_layout.SetWidth(width);
    return LayOut();
}

void TreeControl::Redraw(HTREEITEM hItem)
{
    const ItemIndex item = m_items.Find(hItem);
    const int row = item == kNoItem ? -1 : m_items.RowOf(item);
    const CRect visible = m_layout.RowRect(row) & CRect(CPoint(), m_layout.Client());
    if (row >= 0 && !visible.IsRectEmpty())
        InvalidateRect(m_hWnd, &visible);
}

void TreeControl::RedrawFrom(int row)
{
    const int top = m_layout.RowRect(std::max(row, m_layout.TopRow())).top;
    const CRect rect(0, top, m_layout.Client().cx, m_layout.Client().cy);
    if (!rect.IsRectEmpty())
        InvalidateRect(m_hWnd, &rect);
}

} // namespace toolkit
