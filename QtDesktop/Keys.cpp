#include "QtDesktop/Keys.h"

#include <algorithm>
#include <span>

namespace qtdesktop
{
namespace
{

struct Key
{
    int qt;
    UINT vkey;
};

constexpr Key kKeys[] = {
    {Qt::Key_Backspace, VK_BACK},    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},       {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},      {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},   {Qt::Key_Alt, VK_MENU},
    {Qt::Key_Escape, VK_ESCAPE},     {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},      {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},           {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},         {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},       {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Insert, VK_INSERT},     {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Menu, VK_APPS},         {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Plus, VK_OEM_PLUS},     {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},   {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Period, VK_OEM_PERIOD},
};

constexpr Key kKeypad[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY},
    {Qt::Key_Plus, VK_ADD},
    {Qt::Key_Minus, VK_SUBTRACT},
};

UINT Find(std::span<const Key> keys, int key)
{
    const auto it = std::find_if(keys.begin(), keys.end(), [key](const Key& entry) { return entry.qt == key; });
    return it == keys.end() ? VK_UNKNOWN : it->vkey;
}

bool IsPrintable(const QString& text)
{
    return !text.isEmpty() &&
           std::none_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

} // namespace

toolkit::Modifiers ToModifiers(Qt::KeyboardModifiers modifiers)
{
    return {.shift = modifiers.testFlag(Qt::ShiftModifier),
            .control = modifiers.testFlag(Qt::ControlModifier),
            .alt = modifiers.testFlag(Qt::AltModifier)};
}

toolkit::Modifiers ModifiersAfter(const QKeyEvent& event)
{
    toolkit::Modifiers modifiers = ToModifiers(event.modifiers());
    const bool bDown = event.type() == QEvent::KeyPress;
    switch (event.key()) {
    case Qt::Key_Shift:
        modifiers.shift = bDown;
        break;
    case Qt::Key_Control:
        modifiers.control = bDown;
        break;
    case Qt::Key_Alt:
        modifiers.alt = bDown;
        break;
    default:
        break;
    }
    return modifiers;
}

UINT ToVirtualKey(const QKeyEvent& event)
{
    const int key = event.key();
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return static_cast<UINT>(key); // Qt's codes are upper-case ASCII, too
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return VK_F1 + static_cast<UINT>(key - Qt::Key_F1);
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const UINT vkey = Find(kKeypad, key); vkey != VK_UNKNOWN)
            return vkey;
    }
    return Find(kKeys, key);
}

std::string TypedText(const QKeyEvent& event)
{
    const bool bCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return bCommand || !IsPrintable(event.text()) ? std::string() : event.text().toStdString();
}

} // namespace qtdesktop
