#include "Toolkit/controls/tree/TreePainter.h"

#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{

constexpr BYTE kLine = 96; // of 255
constexpr int kButton = 9; // pixels, square
constexpr int kSign = 5;   // the plus or minus inside

void DrawLine(HDC hdc, const CRect& rect)
{
    BlendRect(hdc, rect, GetSysColor(COLOR_BTNSHADOW), kLine);
}

} // namespace

void TreePainter::OnPaint() const
{
    int width = 0;
    bool complete = false;
    {
        const CPaintDC paint(m_control.m_hWnd);
        width = DrawRows(paint, paint.GetPaintRect(), complete);
    }
    m_viewport.TakeWidth(width, complete);
}

// The owner may change the tree while it is asked what to show: then all is painted anew.
int TreePainter::DrawRows(HDC hdc, const CRect& rcPaint, bool& complete) const
{
    const RowSpan rows = m_layout.RowsTouching(rcPaint);
    const RowSpan shown = m_layout.RowsTouching(CRect(CPoint(), m_layout.Client()));
    const unsigned version = m_items.Version();
    const int top = m_layout.TopRow(), x = m_layout.X();
    const UINT parts = TVIF_TEXT | (m_control.Images() ? TVIF_IMAGE | TVIF_SELECTEDIMAGE : 0) |
                       (m_control.Is(TVS_HASBUTTONS) ? TVIF_CHILDREN : 0);
    int width = 0;
    complete = rows.first == shown.first && rows.end == shown.end;
    for (int row = rows.first; row < rows.end; ++row) {
        if (!RectVisible(hdc, m_layout.RowRect(row))) {
            complete = false;
            continue;
        }
        const HTREEITEM hItem = m_items.HandleOf(m_items.AtRow(row));
        const ItemFace face = m_owner.AskFace(hItem, parts);
        if (m_items.Version() != version || m_layout.TopRow() != top || m_layout.X() != x) {
            m_control.RedrawAll();
            complete = false;
            break;
        }
        width = std::max(width, DrawRow(hdc, row, m_items.Find(hItem), face));
    }
    return width;
}

int TreePainter::DrawRow(HDC hdc, int row, ItemIndex item, const ItemFace& face) const
{
    const int level = m_items.Level(item);
    const int textWidth = m_viewport.TextWidth(item, face.text);
    if (m_control.Is(TVS_HASLINES))
        DrawLines(hdc, row, level, item);
    if (face.hasChildren && m_viewport.HasButtonAt(level))
        DrawButton(hdc, m_layout.ButtonSlot(row, level), m_items.IsExpanded(item) && m_items.ChildCount(item) > 0);
    const int image = m_items[item].state & TVIS_SELECTED ? face.selectedImage : face.image;
    const CPoint at = m_layout.IconAt(row, level);
    ImageList_Draw(m_control.Images(), image, hdc, at.x, at.y, ILD_NORMAL);
    if (!m_control.Labels().Edits(reinterpret_cast<LPARAM>(m_items.HandleOf(item)))) // else the field stands there
        DrawLabel(hdc, m_layout.LabelBox(row, level, textWidth), item, face.text);
    return m_layout.RightOf(level, textWidth);
}

// Every sibling is joined to the one before it, the first one to the parent.
void TreePainter::DrawLines(HDC hdc, int row, int level, ItemIndex item) const
{
    const ItemIndex own = item;
    for (; item != kNoItem && m_viewport.HasLinesAt(level); item = m_items.Parent(item), --level) {
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

void TreePainter::DrawButton(HDC hdc, const CRect& slot, bool expanded) const
{
    const CPoint middle = slot.CenterPoint();
    const CRect box(CPoint(middle.x - kButton / 2, middle.y - kButton / 2), CSize(kButton, kButton));
    CRect inside = box;
    inside.DeflateRect(1, 1);
    FillRoundRect(hdc, box, 2, GetSysColor(COLOR_BTNSHADOW));
    FillSolidRect(hdc, inside, GetSysColor(COLOR_WINDOW));
    const COLORREF ink = GetSysColor(COLOR_3DDKSHADOW);
    FillSolidRect(hdc, CRect(CPoint(middle.x - kSign / 2, middle.y), CSize(kSign, 1)), ink);
    if (!expanded)
        FillSolidRect(hdc, CRect(CPoint(middle.x, middle.y - kSign / 2), CSize(1, kSign)), ink);
}

void TreePainter::DrawLabel(HDC hdc, const CRect& box, ItemIndex item, const std::string& text) const
{
    const Mark mark = MarkOf(item);
    CRect ground = box;
    ground.DeflateRect(0, 1); // marked neighbours stay apart
    if (mark != Mark::None && !text.empty())
        FillRoundRect(hdc, ground, 2, GetSysColor(mark == Mark::Full ? COLOR_HIGHLIGHT : COLOR_BTNFACE));

    SetTextColor(hdc, GetSysColor(mark == Mark::Full ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    SetFontStyle(hdc, m_viewport.FontOf(item));
    const int lineHeight = CurrentTextEngine().LineHeight();
    TextOut(hdc, box.left + TreeLayout::kLabelPadding, box.top + (box.Height() - lineHeight) / 2, text);
}

// What is pressed, or would take what is dragged, stands out alone; the selected item steps back meanwhile.
TreePainter::Mark TreePainter::MarkOf(ItemIndex item) const
{
    const HTREEITEM hItem = m_items.HandleOf(item);
    const HTREEITEM hPressed = m_mouse.Pressed();
    if ((m_items[item].state & TVIS_DROPHILITED) || hItem == hPressed)
        return Mark::Full;
    if (hItem != m_selection.Caret())
        return Mark::None;
    if (m_control.IsFocused())
        return hPressed || m_selection.HasDropMarks() ? Mark::Grey : Mark::Full;
    return m_control.Is(TVS_SHOWSELALWAYS) ? Mark::Grey : Mark::None;
}

} // namespace toolkit
