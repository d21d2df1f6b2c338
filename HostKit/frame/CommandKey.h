// The keys that give a command.
#pragma once

#include "HostKit/base/Api.h"

#include <string>

namespace hostkit
{

struct HOSTKIT_API CommandKey
{
    enum class With
    {
        Nothing,
        Control,
        ControlShift,
        Alt,
        AltShift,
        Whatever, // else is held down
        Views     // know it themselves: the menu tells it, and nobody else looks for it
    };

    UINT vkey = 0; // 0: none
    With with = With::Nothing;

    bool IsGivenBy(UINT key, bool bControl, bool bShift, bool bAlt = false) const;
    std::string Text() const; // as menus show it: "Ctrl+C"; empty without a key
};

} // namespace hostkit
