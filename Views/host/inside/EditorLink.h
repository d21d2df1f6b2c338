// Inside the library.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "Views/host/FocusBlock.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/StubRef.h"

#include <optional>

namespace views
{

// A view's link with the atom editor: its place among the handlers, its pane, and its part in handing the focus around.
//
// The view that has the focus is the one whose selection counts: the selection is announced when the focus comes,
// unless it was made from outside while another view had the focus, which everyone knows.
class EditorLink
{
public:
    EditorLink(CWnd& view, IAEStateHandler& handler, BOOL bPassive) // both are the view
        : m_view(view), m_handler(handler), m_bPassive(bPassive)
    {}

    BOOL IsPassive() const { return m_bPassive; }
    CStubRef<IAtomEditor> GetEditor() const; // to be asked and told: empty without one, and for a passive view

    // For a new window, which is registered from here on; without an editor (NULL) it is not. False when the window
    // went while the editor was told.
    bool Join(IAtomEditor* pEditor);
    void Leave(); // does nothing without a registration; without an editor there is none any more

    // Shows the view as a pane with a string and an icon of the host's. When memory runs out, the user is told, and the
    // pane comes without the icon, or with the other caption in place of the string. The window may be gone afterwards.
    void AddPane(IAtomEditor* pEditor, DWORD dwKind, UINT nCaptionID, UINT nIconID, LPCSTR pszOtherCaption) const;
    // Shows the editor's menu for what is selected, at the cursor, until the user has chosen; what is chosen goes to
    // the editor's main window. Nothing happens without an editor or a menu. The view may be gone afterwards.
    static void ShowMenu();

    bool HasFocus() const { return m_view.m_hWnd && ::GetFocus() == m_view.m_hWnd; }
    bool TakeFocus(); // false when it was refused
    // The focus comes before the click, which is dropped when the focus is refused; and then so is the press that would
    // make a double click of it.
    bool TakeFocusForPress() { return !(m_bPressDropped = !TakeFocus()); }
    bool TakeFocusForDoubleClick() { return !m_bPressDropped && TakeFocus(); }

    // For OnSetFocus, with a FocusBlock open. False when it was refused, and given back. announceSelection says false
    // to refuse, which counts when there is a window to give it back to. Whoever is asked may destroy that window, or
    // move the focus on. Inside another block nobody is asked, and nothing is noted.
    template <class Announce>
    bool GainFocus(CWnd* pOldWnd, const Announce& announceSelection)
    {
        m_bLost = false;
        if (FocusBlock::IsInFocusBlock())
            return true;
        const HWND hOldWnd = pOldWnd ? pOldWnd->m_hWnd : nullptr;
        const BOOL bFromSelChange = m_bFocusFromSelChange;
        if (!m_bPassive && !(OfferSave() && (announceSelection() || !hOldWnd))) {
            GiveBackFocus(hOldWnd);
            m_bFocusFromSelChange = bFromSelChange; // the focus never was here, whatever losing it has done
            return false;
        }
        m_bFocusFromSelChange = FALSE;
        m_bHasFocus = !m_bLost;
        return true;
    }
    void LoseFocus();
    bool IsFocusLost() const { return m_bLost; } // since it came last, be it that others are still being asked

    // Is the selection changing, or has it changed, without the focus?
    BOOL IsFocusFromSelChange() const { return m_bFocusFromSelChange; }
    void NoteSelChange() { m_bFocusFromSelChange = !m_bHasFocus; }
    void EndSelChange() { m_bFocusFromSelChange = FALSE; }

private:
    // Has what the user was working on saved before the work goes on in another view: asks every handler, about the
    // top of the active atom's hierarchy. False when one refused; true, too, without an editor or an active atom.
    static bool OfferSave();
    void GiveBackFocus(HWND hOldWnd);

    CWnd& m_view;
    IAEStateHandler& m_handler;
    const BOOL m_bPassive;
    std::optional<DWORD> m_cookie; // while it is registered
    BOOL m_bHasFocus = FALSE;      // from the end of a completed OnSetFocus to the next OnKillFocus
    BOOL m_bFocusFromSelChange = FALSE;
    bool m_bLost = false;
    bool m_bPressDropped = false; // the last press, whose focus was refused
};

} // namespace views
