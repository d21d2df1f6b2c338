// Inside the library.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "Views/host/FocusBlock.h"

namespace views
{

// A view's part in handing the focus around. The view that has it is the one whose selection counts: the selection is
// announced when the focus comes, unless it was made from outside while another view had the focus, which everyone
// knows.
class ViewFocus
{
public:
    ViewFocus(CWnd& view, BOOL bPassive) : m_view(view), m_bPassive(bPassive) {} // borrows the view
    void Reset() { m_bHas = m_bFromSelChange = FALSE; }                          // for a new window

    bool IsHere() const { return m_view.m_hWnd && ::GetFocus() == m_view.m_hWnd; }
    bool Take(); // false when it was refused
    // The focus comes before the click, which is dropped when the focus is refused; and then so is the press that would
    // make a double click of it.
    bool TakeForPress() { return !(m_bPressDropped = !Take()); }
    bool TakeForDoubleClick() { return !m_bPressDropped && Take(); }

    // For OnSetFocus, with a FocusBlock open. False when it was refused, and given back. announceSelection says false
    // to refuse, which counts when there is a window to give it back to. Whoever is asked may destroy that window, or
    // move the focus on. Inside another block nobody is asked, and nothing is noted.
    template <class Announce>
    bool Gain(CWnd* pOldWnd, const Announce& announceSelection)
    {
        m_bLost = false;
        if (FocusBlock::IsInFocusBlock())
            return true;
        const HWND hOldWnd = pOldWnd ? pOldWnd->m_hWnd : nullptr;
        if (!m_bPassive && !(OfferSave() && (announceSelection() || !hOldWnd))) {
            GiveBack(hOldWnd);
            return false;
        }
        m_bFromSelChange = FALSE;
        m_bHas = !m_bLost;
        return true;
    }
    void Lose();
    bool IsLost() const { return m_bLost; } // since it came last, be it that others are still being asked

    void NoteSelChange() { m_bFromSelChange = !m_bHas; }
    // The selection is changing, or has changed, without the focus.
    BOOL IsFromSelChange() const { return m_bFromSelChange; }
    void SetFromSelChange(BOOL bFrom) { m_bFromSelChange = bFrom; }

private:
    // Has what the user was working on saved before the work goes on in another view: asks every handler, about the
    // top of the active atom's hierarchy. False when one refused; true, too, without an editor or an active atom.
    static bool OfferSave();
    void GiveBack(HWND hOldWnd);

    CWnd& m_view;
    const BOOL m_bPassive;
    BOOL m_bHas = FALSE; // from the end of a completed OnSetFocus to the next OnKillFocus
    BOOL m_bFromSelChange = FALSE;
    bool m_bLost = false;
    bool m_bPressDropped = false; // the last press, whose focus was refused
};

} // namespace views
