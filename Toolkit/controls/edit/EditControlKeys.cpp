// The edit control under the keyboard.
#include "Toolkit/base/Text.h"
#include "Toolkit/controls/edit/EditControl.h"

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

std::string ToUtf8(char32_t c)
{
    const auto rest = [c](int shift) { return static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80)
        return {static_cast<char>(c)};
    if (c < 0x800)
        return {static_cast<char>(0xC0 | c >> 6), rest(0)};
    if (c < 0x10000)
        return {static_cast<char>(0xE0 | c >> 12), rest(6), rest(0)};
    return {static_cast<char>(0xF0 | c >> 18), rest(12), rest(6), rest(0)};
}

bool IsCharacter(UINT c)
{
    return c >= 0x20 && c != kCtrlBackspace && c < 0x110000 && (c < 0xD800 || c > 0xDFFF);
}

} // namespace

LRESULT EditControl::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    const auto vkey = static_cast<UINT>(wParam);
    const bool shift = GetKeyState(VK_SHIFT) < 0, control = GetKeyState(VK_CONTROL) < 0;
    if (const std::optional<std::size_t> target = TargetOf(vkey, control, shift))
        return MoveCaret(*target, shift), 0;

    const std::string& text = m_text.Text();
    const std::size_t caret = m_text.Caret();
    switch (vkey) {
    case VK_DELETE:
        if (shift)
            return Ask(WM_CUT);
        static_cast<void>(control ? EraseOr({caret, NextWord(text, caret)}, EditKind::Other)
                                  : EraseOr({caret, NextStop(text, caret)}, EditKind::Deleting));
        return 0;
    case VK_INSERT:
        if (shift != control)
            return Ask(shift ? WM_PASTE : WM_COPY);
        return 0;
    default:
        return ::DefWindowProc(m_hWnd, WM_KEYDOWN, wParam, lParam);
    }
}

// An arrow without Shift leaves a selection at that end of it.
std::optional<std::size_t> EditControl::TargetOf(UINT vkey, bool control, bool shift) const
{
    const std::string& text = m_text.Text();
    const TextSpan selection = m_text.Selection();
    const std::size_t caret = m_text.Caret();
    const bool leaves = !shift && !control && !selection.IsEmpty();
    switch (vkey) {
    case VK_LEFT:
    case VK_UP:
        if (leaves)
            return selection.first;
        return control ? PreviousWord(text, caret) : PreviousStop(text, caret);
    case VK_RIGHT:
    case VK_DOWN:
        if (leaves)
            return selection.end;
        return control ? NextWord(text, caret) : NextStop(text, caret);
    case VK_HOME:
        return 0;
    case VK_END:
        return text.size();
    default:
        return std::nullopt;
    }
}

LRESULT EditControl::OnSysKeyDown(WPARAM wParam, LPARAM lParam)
{
    if (wParam == VK_BACK && GetKeyState(VK_MENU) < 0)
        return Ask(WM_UNDO);
    return ::DefWindowProc(m_hWnd, WM_SYSKEYDOWN, wParam, lParam);
}

LRESULT EditControl::OnChar(WPARAM wParam, LPARAM)
{
    const auto c = static_cast<UINT>(wParam);
    static_cast<void>(IsCharacter(c) ? Insert(ToUtf8(c), EditKind::Typing) : Command(c));
    return 0;
}

bool EditControl::Command(UINT character)
{
    const HWND hWnd = m_hWnd;
    const std::size_t caret = m_text.Caret();
    switch (character) {
    case kBackspace:
        return EraseOr({PreviousStop(m_text.Text(), caret), caret}, EditKind::Deleting);
    case kCtrlBackspace:
        return EraseOr({PreviousWord(m_text.Text(), caret), caret}, EditKind::Other);
    case Ctrl('A'):
        SelectAll();
        return true;
    case Ctrl('C'):
        Ask(WM_COPY);
        return IsWindow(hWnd);
    case Ctrl('X'):
        Ask(WM_CUT);
        return IsWindow(hWnd);
    case Ctrl('V'):
        Ask(WM_PASTE);
        return IsWindow(hWnd);
    case Ctrl('Z'):
        Ask(WM_UNDO);
        return IsWindow(hWnd);
    default:
        return true;
    }
}

} // namespace toolkit
