#include "HostKit/CommandKey.h"

#include "Toolkit/message/Messages.h"

namespace hostkit
{

bool CommandKey::IsGivenBy(UINT key, bool bControl, bool bShift) const
{
    if (key == 0 || key != vkey)
        return false;
    switch (with) {
    case With::Nothing:
        return !bControl && !bShift;
    case With::Control:
        return bControl && !bShift;
    case With::ControlShift:
        return bControl && bShift;
    case With::Whatever:
        return true;
    case With::Views:
        return false;
    }
    return false;
}

std::string CommandKey::Text() const
{
    switch (vkey) {
    case 0:
        return {};
    case VK_RETURN:
        return "Enter";
    case VK_DELETE:
        return "Del";
    case VK_F2:
    case VK_F5:
        return "F" + std::to_string(vkey - VK_F1 + 1);
    default:
        return std::string(with == With::ControlShift ? "Ctrl+Shift+" : "Ctrl+") + static_cast<char>(vkey);
    }
}

} // namespace hostkit
