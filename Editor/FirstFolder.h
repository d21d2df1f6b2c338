// What is opened when no folder is named.
#pragma once

#include "Editor/frame/Settings.h"

#include <string>

namespace editor
{

// The last folder that is still there. At first, and when all have gone, a copy of the samples in the user's own place,
// made when it is not there; the current folder where there are no samples or that fails.
std::string FirstFolder(const Settings& settings);

// To be looked at only: the samples where the program was built, else the current folder.
std::string SampleFolder();

} // namespace editor
