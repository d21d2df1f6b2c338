// How the tree control draws: only the rows that touch what is to be painted.
#pragma once

#include "Toolkit/controls/tree/TreeMouse.h"

namespace toolkit
{

class TreePainter
{
public:
    TreePainter(ItemControl& control, const TreeItems& items, const TreeLayout& layout, const TreeOwner& owner,
                TreeViewport& viewport, const TreeSelection& selection, const TreeMouse& mouse)
        : m_control(control),
          m_items(items),
          m_layout(layout),
          m_owner(owner),
          m_viewport(viewport),
          m_selection(selection),
          m_mouse(mouse)
    {}

    void OnPaint() const;

private:
    enum class Mark
    {
        None,
        Grey,
        Full
    };

    // How wide the content is in these rows, and whether they were all that are in sight.
    int DrawRows(HDC hdc, const CRect& rcPaint, bool& complete) const;
    int DrawRow(HDC hdc, int row, ItemIndex item, const ItemFace& face) const; // the label's right end, in the content
    void DrawLines(HDC hdc, int row, int level, ItemIndex item) const;
    void DrawButton(HDC hdc, const CRect& slot, bool expanded) const;
    void DrawLabel(HDC hdc, const CRect& box, ItemIndex item, const std::string& text) const;
    Mark MarkOf(ItemIndex item) const;

    ItemControl& m_control;
    const TreeItems& m_items;
    const TreeLayout& m_layout;
    const TreeOwner& m_owner;
    TreeViewport& m_viewport;
    const TreeSelection& m_selection;
    const TreeMouse& m_mouse;
};

} // namespace toolkit
