// A field in a window, and what its user and its parent see of it.
#pragma once

#include "Toolkit/controls/edit/Edit.h"
#include "tests/support/DesktopTest.h"

#include <functional>

// Writes what its fields notify: "change", "focus comes" ...
class FieldParent : public CWnd
{
public:
    LedgerBook book;
    std::function<void(const std::string& line)> meanwhile = [](const std::string&) {};

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
};

// "ab[cd]e": the text with the selection in brackets, or with the caret as a bar; "-" where there is no field.
std::string FieldState(HWND hField);
CRect FieldRect(HWND hField); // in its parent's client area

class EditTest : public DesktopTest
{
protected:
    void SetUp() override;

    std::string State() const { return FieldState(edit.m_hWnd); }
    void Set(LPCSTR pszText); // and the caret at its end; the ledger is empty then
    std::string AfterKey(UINT vkey, toolkit::Modifiers modifiers = {}) { return Key(vkey, modifiers), State(); }
    Ledger TakeLedger() { return top.book.TakeLedger(); }
    CPoint At(int position) const; // the position's own pixel column, in the line's middle
    // What the clipboard holds as text, as another program reads it; "-" for none.
    std::string Clipboard();
    void TakeClipboard(const std::string& text); // another program puts a text there

    FieldParent top;
    CEdit edit;
    CEdit other;
};
