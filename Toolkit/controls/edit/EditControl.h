// The control behind WC_EDIT: a single line of text.
//
// The object is whole before it notifies, since handlers set the text anew or ask for the selection.
#pragma once

#include "Toolkit/access/Accessible.h"
#include "Toolkit/controls/edit/EditHistory.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/edit/EditMouse.h"
#include "Toolkit/controls/edit/EditView.h"
#include "Toolkit/input/TextInput.h"

namespace toolkit
{

class EditControl : public NativeWindow, public TextInput, public Accessible
{
public:
    explicit EditControl(HWND hWnd) : NativeWindow(hWnd) {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    TextInputState GetTextInput() const override;
    void Compose(std::string_view text, std::size_t caret) override;

    // Its text, caret and selection the field tells by message.
    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_TEXT; }
    UINT AccState(LPARAM) override { return STATE_SYSTEM_FOCUSABLE; }

protected:
    virtual void TextIsNew() {} // before anybody is told; must not notify

private:
    // Life and looks of the whole.
    void OnCreate(WPARAM, const CREATESTRUCT* pCreate);
    void OnLooksChanged();
    void OnSetFocus();
    void OnKillFocus();
    int OnGetDlgCode() { return DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_HASSETSEL; }
    LRESULT OnTimer(WPARAM wParam, LPARAM lParam);

    // The text, its selection and its history, by message.
    BOOL OnSetText(WPARAM, LPCSTR pszText);
    std::size_t OnGetText(std::size_t nBuffer, LPSTR pszBuffer) const;
    std::size_t OnGetTextLength() const { return m_text.Text().size(); }
    LRESULT OnGetSel(DWORD* pStart, DWORD* pEnd) const;
    BOOL OnSetSel(int start, int end);
    BOOL OnScrollCaret();
    void OnReplaceSel(BOOL canUndo, LPCSTR pszText);
    void OnLimitText(std::size_t bytes);
    BOOL OnUndo();
    LRESULT OnPosFromChar(std::size_t at);
    void OnCut();
    void OnCopy();
    void OnPaste();
    void OnClear();

    // Changes by the user.
    void Insert(std::string_view text, EditKind kind); // in place of the selection
    void Erase(TextSpan span, EditKind kind);
    void EraseOr(TextSpan other, EditKind kind); // the selection, the other without one
    void TellChange();                           // and shows it, the caret in view
    void Tell(UINT code) const;
    void SelectAll() { m_view.Select(0, m_text.Text().size()); }
    // What a key or the menu asks for comes as the message that says so: a derived class hears of it, and may keep it.
    void Ask(UINT message) { SendMessage(m_hWnd, message, 0, 0); }

    // Keys.
    LRESULT OnKeyDown(UINT vkey, LPARAM lParam);
    LRESULT OnSysKeyDown(WPARAM wParam, LPARAM lParam);
    void OnChar(UINT c);
    std::optional<std::size_t> TargetOf(UINT vkey, bool control, bool shift) const; // where the key moves the caret
    std::size_t ArrowTarget(bool right, bool control, bool shift) const;
    void Command(UINT character); // a control character

    // The context menu.
    void OnContextMenu(WPARAM, CPoint at);
    UINT AskMenu(CPoint screen); // the command chosen, 0 for none

    EditText m_text;
    EditHistory m_history;
    EditView m_view{*this, m_text};
    EditMouse m_mouse{*this, m_text, m_view};
    std::size_t m_limit = 0x7FFE;
};

} // namespace toolkit
