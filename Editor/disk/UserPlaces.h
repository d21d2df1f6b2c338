// Where the desktop has a user's programs keep things.
#pragma once

#include <string>

namespace editor
{

// Absolute; empty where nobody knows. The folders need not be there.
std::string DataHome();   // $XDG_DATA_HOME, else ~/.local/share
std::string ConfigHome(); // $XDG_CONFIG_HOME, else ~/.config
std::string StateHome();  // $XDG_STATE_HOME, else ~/.local/state

} // namespace editor
