// The edit control under the keyboard.
#include "Toolkit/base/Text.h"
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/controls/edit/TextPlaces.h"

namespace toolkit
{

namespace
{

// What Ctrl with a letter types.
constexpr UINT Ctrl(char letter)
{
    return static_cast<UINT>(letter - 'A' + 1);
}

constexpr UINT kBackspace = 0x08, kCtrlBackspace = 0x7F;

bool IsCharacter(UINT c)
{
    return c >= 0x20 && c != kCtrlBackspace && c < 0x110000 && (c < 0xD800 || c > 0xDFFF);
}

} // namespace

LRESULT EditControl::OnKeyDown(UINT vkey, LPARAM lParam)
{
    const bool shift = GetKeyState(VK_SHIFT) < 0, control = GetKeyState(VK_CONTROL) < 0;
    if (const std::optional<std::size_t> target = TargetOf(vkey, control, shift))
        return m_view.Select(shift ? m_text.Anchor() : *target, *target), 0;

    const std::string& text = m_text.Text();
    const std::size_t caret = m_text.Caret();
    if (vkey == VK_DELETE && shift)
        Ask(WM_CUT);
    else if (vkey == VK_DELETE && control)
        EraseOr({caret, NextWord(text, caret)}, EditKind::Other);
    else if (vkey == VK_DELETE)
        EraseOr({caret, NextStop(text, caret)}, EditKind::Deleting);
    else if (vkey == VK_INSERT && shift != control)
        Ask(shift ? WM_PASTE : WM_COPY);
    else if (vkey != VK_INSERT)
        return ::DefWindowProc(m_hWnd, WM_KEYDOWN, vkey, lParam);
    return 0;
}

std::optional<std::size_t> EditControl::TargetOf(UINT vkey, bool control, bool shift) const
{
    switch (vkey) {
    case VK_LEFT:
    case VK_UP:
        return ArrowTarget(false, control, shift);
    case VK_RIGHT:
    case VK_DOWN:
        return ArrowTarget(true, control, shift);
    case VK_HOME:
        return 0;
    case VK_END:
        return m_text.Text().size();
    default:
        return std::nullopt;
    }
}

// Goes where it points, whichever way the letters are read there; over words, in the direction of the whole text.
// Without Shift it leaves a selection at that end of it.
std::size_t EditControl::ArrowTarget(bool right, bool control, bool shift) const
{
    const std::string& text = m_text.Text();
    const TextSpan selection = m_text.Selection();
    const std::size_t caret = m_text.Caret();
    const TextPlaces places(text);
    if (control)
        return right != places.ReadsLeftwards() ? NextWord(text, caret) : PreviousWord(text, caret);
    if (shift || selection.IsEmpty())
        return right ? places.StopRightOf(caret) : places.StopLeftOf(caret);
    const bool startIsRight = places.CaretX(selection.first) > places.CaretX(selection.end);
    return right == startIsRight ? selection.first : selection.end;
}

LRESULT EditControl::OnSysKeyDown(WPARAM wParam, LPARAM lParam)
{
    if (wParam == VK_BACK && GetKeyState(VK_MENU) < 0)
        return SendMessage(m_hWnd, WM_UNDO, 0, 0);
    return ::DefWindowProc(m_hWnd, WM_SYSKEYDOWN, wParam, lParam);
}

void EditControl::OnChar(UINT c)
{
    if (IsCharacter(c))
        Insert(EncodeUtf8(c), EditKind::Typing);
    else
        Command(c);
}

void EditControl::Command(UINT character)
{
    const std::size_t caret = m_text.Caret();
    switch (character) {
    case kBackspace:
        return EraseOr({PreviousStop(m_text.Text(), caret), caret}, EditKind::Deleting);
    case kCtrlBackspace:
        return EraseOr({PreviousWord(m_text.Text(), caret), caret}, EditKind::Other);
    case Ctrl('A'):
        return SelectAll();
    case Ctrl('C'):
        return Ask(WM_COPY);
    case Ctrl('X'):
        return Ask(WM_CUT);
    case Ctrl('V'):
        return Ask(WM_PASTE);
    case Ctrl('Z'):
        return Ask(WM_UNDO);
    default:
        return;
    }
}

} // namespace toolkit
