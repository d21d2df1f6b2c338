#include "QtDesktop/AccessibleText.h"

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/edit/TextStops.h"
#include "Toolkit/input/TextInput.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/window/WindowApi.h"

#include <QRect>
#include <algorithm>

namespace qtdesktop
{
namespace
{

DWORD ToBytes(const QString& text, int units)
{
    return static_cast<DWORD>(text.left(std::max(units, 0)).toUtf8().size());
}

int ToUnits(const QByteArray& text, std::size_t bytes)
{
    return static_cast<int>(QString::fromUtf8(text.left(static_cast<qsizetype>(bytes))).size());
}

// As the user's own doing: in its order among messages and input.
void SelectLater(HWND hWnd, DWORD first, DWORD end)
{
    toolkit::PostTask([hWnd, first, end] {
        SendMessage(hWnd, EM_SETSEL, first, static_cast<LPARAM>(end));
        SendMessage(hWnd, EM_SCROLLCARET, 0, 0);
    });
}

} // namespace

// Which end of the selection is the caret's only the field with the focus tells.
FieldText ReadField(HWND hWnd)
{
    const QByteArray text = GetWindowText(hWnd).GetString();
    const toolkit::TextInput* const pInput = GetFocus() == hWnd ? toolkit::FocusedTextInput() : nullptr;
    if (pInput) {
        const toolkit::TextInputState state = pInput->GetTextInput();
        return {QString::fromUtf8(text), ToUnits(text, state.cursor), ToUnits(text, state.anchor)};
    }
    DWORD first = 0, end = 0;
    SendMessage(hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    return {QString::fromUtf8(text), ToUnits(text, end), ToUnits(text, first)};
}

void AccessibleText::selection(int index, int* pStart, int* pEnd) const
{
    const FieldText field = ReadField(m_hWnd);
    *pStart = index == 0 ? std::min(field.cursor, field.anchor) : 0;
    *pEnd = index == 0 ? std::max(field.cursor, field.anchor) : 0;
}

int AccessibleText::selectionCount() const
{
    const FieldText field = ReadField(m_hWnd);
    return field.cursor == field.anchor ? 0 : 1;
}

void AccessibleText::addSelection(int start, int end)
{
    const QString text = ReadField(m_hWnd).text;
    SelectLater(m_hWnd, ToBytes(text, start), ToBytes(text, end));
}

QString AccessibleText::text(int start, int end) const
{
    const QString text = ReadField(m_hWnd).text;
    return text.mid(start, end < 0 ? -1 : end - start);
}

QRect AccessibleText::characterRect(int offset) const
{
    const QString text = ReadField(m_hWnd).text;
    const DWORD first = ToBytes(text, offset);
    const LPARAM from = SendMessage(m_hWnd, EM_POSFROMCHAR, first, 0);
    const LPARAM to = SendMessage(m_hWnd, EM_POSFROMCHAR, toolkit::NextStop(text.toStdString(), first), 0);
    CPoint corner(GET_X_LPARAM(from), GET_Y_LPARAM(from));
    CRect client;
    GetClientRect(m_hWnd, &client);
    const int height = client.Height() - 2 * corner.y; // the line stands in the middle
    const int width = GET_X_LPARAM(to) - corner.x;
    ClientToScreen(m_hWnd, &corner);
    return QRect(corner.x, corner.y, width, height).normalized();
}

int AccessibleText::offsetAtPoint(const QPoint& screen) const
{
    for (int offset = 0; offset < characterCount(); ++offset)
        if (characterRect(offset).contains(screen))
            return offset;
    return -1;
}

QString AccessibleText::attributes(int, int* pStart, int* pEnd) const
{
    *pStart = 0;
    *pEnd = characterCount();
    return {};
}

void AccessibleText::replaceText(int start, int end, const QString& text)
{
    const QString present = ReadField(m_hWnd).text;
    SelectLater(m_hWnd, ToBytes(present, start), ToBytes(present, end));
    toolkit::PostTask([hWnd = m_hWnd, bytes = text.toUtf8()] {
        SendMessage(hWnd, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(bytes.constData()));
    });
}

} // namespace qtdesktop
