#include "HostKit/frame/CommandKey.h"

#include "Toolkit/message/Messages.h"

namespace hostkit
{

bool CommandKey::IsGivenBy(UINT key, bool bControl, bool bShift, bool bAlt) const
{
    if (key == 0 || key != vkey || with == With::Views || bAlt != (with == With::Alt || with == With::AltShift))
        return false;
    if (with == With::Whatever)
        return true;
    return bControl == (with == With::Control || with == With::ControlShift) &&
           bShift == (with == With::ControlShift || with == With::AltShift);
}

std::string CommandKey::Text() const
{
    const bool bLetter = (vkey >= 'A' && vkey <= 'Z') || (vkey >= '0' && vkey <= '9');
    const std::string held = with == With::ControlShift                                  ? "Ctrl+Shift+"
                             : with == With::Alt                                         ? "Alt+"
                             : with == With::AltShift                                    ? "Alt+Shift+"
                             : with == With::Control || (bLetter && with == With::Views) ? "Ctrl+"
                                                                                         : "";
    switch (vkey) {
    case 0:
        return {};
    case VK_RETURN:
        return held + "Enter";
    case VK_DELETE:
        return held + "Del";
    case VK_TAB:
        return held + "Tab";
    case VK_LEFT:
        return held + "Left";
    case VK_RIGHT:
        return held + "Right";
    case VK_UP:
        return held + "Up";
    case VK_OEM_PLUS:
        return held + '+';
    case VK_OEM_MINUS:
        return held + '-';
    default:
        return held + (bLetter ? std::string(1, static_cast<char>(vkey)) : "F" + std::to_string(vkey - VK_F1 + 1));
    }
}

} // namespace hostkit
