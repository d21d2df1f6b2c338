// The edit control's text: what messages and its user do to it, and who is told.
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/exchange/ClipboardText.h"

#include <cstring>

namespace toolkit
{

namespace
{

constexpr std::size_t kNoLimit = 0x7FFFFFFE;

// A single line takes the first line of what is pasted that has anything in it.
std::string_view FirstLine(std::string_view text)
{
    const std::size_t start = std::min(text.find_first_not_of("\r\n"), text.size());
    return text.substr(start, text.find_first_of("\r\n", start) - start);
}

} // namespace

BOOL EditControl::OnSetText(WPARAM, LPCSTR pszText)
{
    m_text.Set(pszText ? pszText : "");
    m_history.Forget();
    m_view.Compose("", 0);
    m_view.Layout().ScrollToStart();
    TellChange();
    return TRUE;
}

std::size_t EditControl::OnGetText(std::size_t nBuffer, LPSTR pszBuffer) const
{
    if (nBuffer == 0 || !pszBuffer)
        return 0;
    const std::size_t length = std::min(nBuffer - 1, m_text.Text().size());
    std::memcpy(pszBuffer, m_text.Text().data(), length);
    pszBuffer[length] = '\0';
    return length;
}

LRESULT EditControl::OnGetSel(DWORD* pStart, DWORD* pEnd) const
{
    const TextSpan selection = m_text.Selection();
    if (pStart)
        *pStart = static_cast<DWORD>(selection.first);
    if (pEnd)
        *pEnd = static_cast<DWORD>(selection.end);
    return selection.end <= 0xFFFF ? MAKELONG(static_cast<int>(selection.first), static_cast<int>(selection.end)) : -1;
}

// Does not scroll.
BOOL EditControl::OnSetSel(int start, int end)
{
    const auto position = [this](int at) { return at < 0 ? m_text.Text().size() : static_cast<std::size_t>(at); };
    if (start < 0)
        m_text.SelectNone();
    else
        m_text.Select(position(start), position(end));
    m_view.Show();
    return TRUE;
}

BOOL EditControl::OnScrollCaret()
{
    m_view.ShowCaret();
    return TRUE;
}

void EditControl::OnReplaceSel(BOOL canUndo, LPCSTR pszText)
{
    const std::string_view text = m_text.FitTo(pszText ? pszText : "", m_limit);
    if (canUndo)
        m_history.Before(m_text, EditKind::Other);
    else
        m_history.Forget();
    m_text.Replace(text);
    m_history.After(m_text);
    TellChange();
}

void EditControl::OnLimitText(std::size_t bytes)
{
    m_limit = bytes == 0 ? kNoLimit : bytes;
}

BOOL EditControl::OnUndo()
{
    if (!m_history.Swap(m_text))
        return FALSE;
    TellChange();
    return TRUE;
}

LRESULT EditControl::OnPosFromChar(std::size_t at)
{
    const CRect place = m_view.Layout().CaretRect(m_text.Text(), StopAtOrBefore(m_text.Text(), at));
    return MAKELPARAM(place.left, place.top);
}

void EditControl::OnCut()
{
    OnCopy();
    OnClear();
}

void EditControl::OnCopy()
{
    if (!m_text.Selection().IsEmpty())
        PutClipboardText(m_text.Selected());
}

void EditControl::OnPaste()
{
    if (const std::optional<std::string> text = GetClipboardText())
        Insert(FirstLine(*text), EditKind::Other);
}

void EditControl::OnClear()
{
    Erase(m_text.Selection(), EditKind::Other);
}

void EditControl::Insert(std::string_view text, EditKind kind)
{
    const std::string_view fitting = m_text.FitTo(text, m_limit);
    const bool whole = fitting.size() == text.size();
    if (!fitting.empty()) {
        m_history.Before(m_text, kind);
        m_text.Replace(fitting);
        m_history.After(m_text);
        TellChange();
    }
    if (!whole)
        Tell(EN_MAXTEXT);
}

void EditControl::Erase(TextSpan span, EditKind kind)
{
    if (span.IsEmpty())
        return;
    m_history.Before(m_text, kind);
    m_text.Select(span.first, span.end);
    m_text.Replace("");
    m_history.After(m_text);
    TellChange();
}

void EditControl::EraseOr(TextSpan other, EditKind kind)
{
    const TextSpan selection = m_text.Selection();
    if (selection.IsEmpty())
        Erase(other, kind);
    else
        Erase(selection, EditKind::Other);
}

void EditControl::TellChange()
{
    TextIsNew();
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    Tell(EN_UPDATE);
    m_view.ShowCaret();
    Tell(EN_CHANGE);
}

} // namespace toolkit
