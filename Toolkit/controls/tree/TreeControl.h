// The control behind WC_TREEVIEW. Takes each message to the part that it concerns.
//
// Across a notification an item is kept as a handle and looked up again.
#pragma once

#include "Toolkit/access/Accessible.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/tree/TreeContent.h"
#include "Toolkit/controls/tree/TreeKeys.h"
#include "Toolkit/controls/tree/TreePainter.h"

namespace toolkit
{

class TreeControl : public ItemControl, public Accessible
{
public:
    explicit TreeControl(HWND hWnd) : ItemControl(hWnd, TVS_EDITLABELS, ES_LEFT) {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // For assistive technology an item is its handle, and its children are in it while it is open.
    UINT AccRole(LPARAM item) override { return item == CHILDID_SELF ? ROLE_SYSTEM_OUTLINE : ROLE_SYSTEM_OUTLINEITEM; }
    UINT AccState(LPARAM item) override;
    std::string AccName(LPARAM item) override;
    CRect AccPlace(LPARAM item) override; // its label, which is what a press selects it by
    bool AccHas(LPARAM item) override { return HasItem(item) && m_items.IsShown(m_items.Find(ToHandle(item))); }
    int AccCount(LPARAM parent) override;
    LPARAM AccChild(LPARAM parent, int place) override;
    LPARAM AccParent(LPARAM item) override { return ToItem(m_items.Parent(m_items.Find(ToHandle(item)))); }
    int AccIndex(LPARAM item) override;
    LPARAM AccAt(CPoint client) override { return ToItem(m_items.AtRow(m_layout.RowAt(client.y))); }
    LPARAM AccFocus() override { return reinterpret_cast<LPARAM>(m_selection.Caret()); }
    std::string AccAction(LPARAM item) override;
    void AccDo(LPARAM item) override { m_selection.Expand(ToHandle(item), TVE_TOGGLE, TVC_UNKNOWN); }
    bool AccCanSelect() override { return true; }
    void AccSelect(LPARAM item, UINT flags) override;

private:
    LPARAM ToItem(ItemIndex item) const { return reinterpret_cast<LPARAM>(m_items.HandleOf(item)); }
    static HTREEITEM ToHandle(LPARAM item) { return reinterpret_cast<HTREEITEM>(item); }

    // Life and looks of the whole.
    void OnDestroy();
    void OnSize();
    void OnSetFocus();
    void OnKillFocus();
    HTREEITEM OnGetNextItem(UINT code, HTREEITEM hItem) const;
    ItemIndex Neighbour(UINT code, HTREEITEM hItem) const;
    void Measure() override { m_viewport.Measure(); }
    void Relayout() override { m_viewport.Relayout(); }

    // Editing a label in place. The field stays with its item wherever that goes, and out of sight while the item is
    // inside a collapsed branch; it goes with the item.
    HWND OnEditLabel(WPARAM, LPARAM item) { return EditLabel(item, true); }
    bool HasItem(LPARAM item) const override;
    bool IsSelected(LPARAM item) const override { return ToHandle(item) == m_selection.Caret(); }
    bool IsPressed() const override { return m_mouse.IsPressed(); }
    void CancelPress() override { m_mouse.Cancel(); }
    void ShowItem(LPARAM item) override { m_selection.Reveal(ToHandle(item)); }
    void RedrawItem(LPARAM item) override { m_viewport.Redraw(ToHandle(item)); }
    CRect FieldBox(LPARAM item, CSize wanted) const override;
    std::optional<std::string> AskLabel(LPARAM item) override { return m_owner.AskLabel(ToHandle(item)); }
    void TellLabel(LPARAM item, std::string& text, bool taken) override;

    TreeItems m_items;
    TreeLayout m_layout;
    TreeOwner m_owner{*this, m_items};
    TreeViewport m_viewport{*this, m_items, m_layout, m_owner};
    TreeOrder m_order{*this, m_items, m_owner, m_viewport};
    TreeSelection m_selection{m_items, m_layout, m_owner, m_order, m_viewport};
    TreeContent m_content{*this, m_items, m_owner, m_order, m_viewport, m_selection};
    TreeMouse m_mouse{*this, m_items, m_owner, m_viewport, m_selection};
    TreeKeys m_keys{*this, m_items, m_layout, m_owner, m_viewport, m_selection, m_mouse};
    TreePainter m_painter{*this, m_items, m_layout, m_owner, m_viewport, m_selection, m_mouse};
};

} // namespace toolkit
