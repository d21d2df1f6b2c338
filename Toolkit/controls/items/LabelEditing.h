// How a list or a tree has a label edited in place: by message, or by a slow second click on it.
//
// An item is a number to it, which its control gives a meaning: a row, or a handle.
#pragma once

#include "Toolkit/window/NativeWindow.h"

#include <optional>
#include <string>

namespace toolkit
{

// What the control does of it.
class LabelHost
{
public:
    virtual bool HasItem(LPARAM item) const = 0;    // it is there, and stays
    virtual bool IsSelected(LPARAM item) const = 0; // alone
    virtual bool IsPressed() const = 0;             // a mouse button is down
    virtual void CancelPress() = 0;                 // the button comes to nothing
    virtual void ShowItem(LPARAM item) = 0;         // scrolls to it
    virtual void RedrawItem(LPARAM item) = 0;
    virtual CRect FieldBox(LPARAM item, CSize wanted) const = 0;

    // LVN_BEGINLABELEDIT and its like. The text to begin with; nothing when it is refused.
    virtual std::optional<std::string> AskLabel(LPARAM item) = 0;
    // LVN_ENDLABELEDIT and its like, and what follows; else it was cancelled.
    virtual void TellLabel(LPARAM item, std::string& text, bool taken) = 0;

protected:
    ~LabelHost() = default;
};

class LabelEditing
{
public:
    static constexpr int kFieldEdge = 4, kFieldTop = 2; // from the field's left or top edge to the text's

    // The style lets the user edit labels; the alignment is an ES_ style.
    LabelEditing(NativeWindow& window, LabelHost& host, DWORD style, DWORD align)
        : m_window(window), m_host(host), m_style(style), m_align(align)
    {}

    HWND Field() const { return m_hField; } // NULL: nothing is edited
    bool Edits(LPARAM item) const { return m_hField && item == m_item; }
    LPARAM Item() const { return m_item; }

    void Begin(LPARAM item);  // Field tells whether it did
    void Finish(bool taken);  // or cancels
    void MoveTo(LPARAM item); // the owner's item is now that one
    void Place();             // the item, or the field's text, is elsewhere or needs other room

    // The second click. A press means its label when the item was selected before, and the press has not just brought
    // the user here.
    void GotFocus();
    bool IsMeant(LPARAM item) const;
    void BeginLater(LPARAM item); // when no double click follows
    void StopWaiting();
    void WaitIsOver();

private:
    NativeWindow& m_window;
    LabelHost& m_host;
    const DWORD m_style, m_align;
    HWND m_hField = nullptr;
    LPARAM m_item = 0; // while there is a field
    HWND m_hClock = nullptr;
    LPARAM m_clicked = 0;  // while there is a clock
    DWORD m_focusedAt = 0; // tick
};

} // namespace toolkit
