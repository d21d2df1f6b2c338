// The edit control's text: what messages and its user do to it, and who is told.
#include "Toolkit/controls/edit/EditClipboard.h"
#include "Toolkit/controls/edit/EditControl.h"

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

LRESULT EditControl::OnSetText(WPARAM, LPARAM lParam)
{
    const auto* const pszText = reinterpret_cast<LPCSTR>(lParam);
    m_text.Set(pszText ? pszText : "");
    m_history.Forget();
    m_composition = {};
    m_layout.ScrollToStart();
    static_cast<void>(TellChange());
    return TRUE;
}

LRESULT EditControl::OnGetText(WPARAM wParam, LPARAM lParam)
{
    if (wParam == 0 || lParam == 0)
        return 0;
    auto* const pszBuffer = reinterpret_cast<LPSTR>(lParam);
    const std::size_t length = std::min<std::size_t>(wParam - 1, m_text.Text().size());
    std::memcpy(pszBuffer, m_text.Text().data(), length);
    pszBuffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT EditControl::OnGetSel(WPARAM wParam, LPARAM lParam)
{
    const TextSpan selection = m_text.Selection();
    if (auto* const pStart = reinterpret_cast<DWORD*>(wParam))
        *pStart = static_cast<DWORD>(selection.first);
    if (auto* const pEnd = reinterpret_cast<DWORD*>(lParam))
        *pEnd = static_cast<DWORD>(selection.end);
    return selection.end <= 0xFFFF ? MAKELONG(static_cast<int>(selection.first), static_cast<int>(selection.end)) : -1;
}

// Does not scroll. Positions come as 32-bit numbers, whatever the width of the parameters.
LRESULT EditControl::OnSetSel(WPARAM wParam, LPARAM lParam)
{
    const auto start = static_cast<std::int32_t>(wParam), end = static_cast<std::int32_t>(lParam);
    const auto position = [this](std::int32_t at) {
        return at < 0 ? m_text.Text().size() : static_cast<std::size_t>(at);
    };
    if (start < 0)
        m_text.SelectNone();
    else
        m_text.Select(position(start), position(end));
    Show();
    return TRUE;
}

LRESULT EditControl::OnScrollCaret(WPARAM, LPARAM)
{
    ShowCaret();
    return TRUE;
}

LRESULT EditControl::OnReplaceSel(WPARAM wParam, LPARAM lParam)
{
    const auto* const pszText = reinterpret_cast<LPCSTR>(lParam);
    const std::string_view text = m_text.FitTo(pszText ? pszText : "", m_limit);
    if (wParam)
        m_history.Before(m_text, EditKind::Other);
    else
        m_history.Forget();
    m_text.Replace(text);
    m_history.After(m_text);
    static_cast<void>(TellChange());
    return 0;
}

LRESULT EditControl::OnLimitText(WPARAM wParam, LPARAM)
{
    m_limit = wParam == 0 ? kNoLimit : wParam;
    return 0;
}

LRESULT EditControl::OnUndo(WPARAM, LPARAM)
{
    if (!m_history.Swap(m_text))
        return FALSE;
    static_cast<void>(TellChange());
    return TRUE;
}

LRESULT EditControl::OnPosFromChar(WPARAM wParam, LPARAM)
{
    const CRect place = m_layout.CaretRect(m_text.Text(), StopAtOrBefore(m_text.Text(), wParam));
    return MAKELPARAM(place.left, place.top);
}

LRESULT EditControl::OnCut(WPARAM, LPARAM)
{
    OnCopy(0, 0);
    return OnClear(0, 0);
}

LRESULT EditControl::OnCopy(WPARAM, LPARAM)
{
    if (!m_text.Selection().IsEmpty())
        PutClipboardText(m_text.Selected());
    return 0;
}

LRESULT EditControl::OnPaste(WPARAM, LPARAM)
{
    if (const std::optional<std::string> text = GetClipboardText())
        static_cast<void>(Insert(FirstLine(*text), EditKind::Other));
    return 0;
}

LRESULT EditControl::OnClear(WPARAM, LPARAM)
{
    static_cast<void>(Erase(m_text.Selection(), EditKind::Other));
    return 0;
}

bool EditControl::Insert(std::string_view text, EditKind kind)
{
    if (text.empty())
        return true;
    const std::string_view fitting = m_text.FitTo(text, m_limit);
    const bool whole = fitting.size() == text.size();
    if (!fitting.empty()) {
        m_history.Before(m_text, kind);
        m_text.Replace(fitting);
        m_history.After(m_text);
        if (!TellChange())
            return false;
    }
    return whole || Tell(EN_MAXTEXT);
}

bool EditControl::Erase(TextSpan span, EditKind kind)
{
    if (span.IsEmpty())
        return true;
    m_history.Before(m_text, kind);
    m_text.Select(span.first, span.end);
    m_text.Replace("");
    m_history.After(m_text);
    return TellChange();
}

bool EditControl::EraseOr(TextSpan other, EditKind kind)
{
    const TextSpan selection = m_text.Selection();
    return selection.IsEmpty() ? Erase(other, kind) : Erase(selection, EditKind::Other);
}

bool EditControl::TellChange()
{
    TextIsNew();
    if (!Tell(EN_UPDATE))
        return false;
    ShowCaret();
    return Tell(EN_CHANGE);
}

std::size_t EditControl::Anchor() const
{
    const TextSpan selection = m_text.Selection();
    return selection.first == m_text.Caret() ? selection.end : selection.first;
}

void EditControl::Select(std::size_t anchor, std::size_t caret)
{
    m_text.Select(anchor, caret);
    ShowCaret();
}

} // namespace toolkit
