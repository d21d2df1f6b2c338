#include "QtDesktop/InputMethod.h"

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/window/WindowApi.h"

#include <QRect>
#include <algorithm>

namespace qtdesktop
{
namespace
{

using toolkit::TextInputState;

QString ToQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

int ToUnits(const std::string& text, std::size_t bytes)
{
    return static_cast<int>(ToQt(std::string_view(text).substr(0, bytes)).size());
}

std::size_t ToBytes(const QString& text, int units)
{
    return static_cast<std::size_t>(text.left(std::max(units, 0)).toUtf8().size());
}

QRect CaretOnSurface(HWND hTop, const TextInputState& state)
{
    CRect top;
    GetWindowRect(hTop, &top);
    CPoint corner;
    ClientToScreen(state.hWnd, &corner);
    const CRect caret = state.caret + (corner - top.TopLeft());
    return {caret.left, caret.top, caret.Width(), caret.Height()};
}

QString Selected(const TextInputState& state)
{
    const auto [first, end] = std::minmax(state.cursor, state.anchor);
    return ToQt(std::string_view(state.text).substr(first, end - first));
}

// The caret's place in what is being composed; its end where the event does not say.
int CaretIn(const QInputMethodEvent& event)
{
    for (const QInputMethodEvent::Attribute& attribute : event.attributes())
        if (attribute.type == QInputMethodEvent::Cursor)
            return attribute.start;
    return static_cast<int>(event.preeditString().size());
}

// Selects what the input method wants to replace, before what it puts there is handled.
void SelectReplaced(const TextInputState& state, const QInputMethodEvent& event)
{
    const QString text = ToQt(state.text);
    const int from = ToUnits(state.text, state.cursor) + event.replacementStart();
    const auto first = static_cast<WPARAM>(ToBytes(text, from));
    const auto end = static_cast<LPARAM>(ToBytes(text, from + event.replacementLength()));
    toolkit::PostTask([hWnd = state.hWnd, first, end] { SendMessage(hWnd, EM_SETSEL, first, end); });
    if (event.commitString().isEmpty()) {
        toolkit::InputKey(VK_DELETE, true, {});
        toolkit::InputKey(VK_DELETE, false, {});
    }
}

} // namespace

std::optional<TextInputState> FindTextInput(HWND hTop)
{
    const toolkit::TextInput* pInput = toolkit::FocusedTextInput();
    if (!pInput)
        return std::nullopt;
    TextInputState state = pInput->GetTextInput();
    if (GetTopLevel(state.hWnd) != hTop)
        return std::nullopt;
    return state;
}

QVariant AnswerInputMethod(HWND hTop, Qt::InputMethodQuery query)
{
    const std::optional<TextInputState> state = FindTextInput(hTop);
    if (query == Qt::ImEnabled)
        return state.has_value();
    if (!state)
        return {};
    switch (query) {
    case Qt::ImCursorRectangle:
        return CaretOnSurface(hTop, *state);
    case Qt::ImSurroundingText:
        return ToQt(state->text);
    case Qt::ImCursorPosition:
        return ToUnits(state->text, state->cursor);
    case Qt::ImAnchorPosition:
        return ToUnits(state->text, state->anchor);
    case Qt::ImCurrentSelection:
        return Selected(*state);
    default:
        return {};
    }
}

bool TakeInputMethod(HWND hTop, const QInputMethodEvent& event)
{
    const std::optional<TextInputState> state = FindTextInput(hTop);
    if (!state)
        return false;
    const QString composed = event.preeditString();
    toolkit::FocusedTextInput()->Compose(composed.toStdString(), ToBytes(composed, CaretIn(event)));
    if (event.replacementLength() > 0)
        SelectReplaced(*state, event);
    toolkit::InputText(event.commitString().toStdString());
    return !composed.isEmpty();
}

} // namespace qtdesktop
