// What the library asks of the kernel, seen from this program, which stands before the kernel.
#pragma once

#include <string>
#include <vector>

// "id IAtom", "service GetAtomEditorSv", "wait", "done": every call since a test last cleared them.
std::vector<std::string>& KernelCalls();
// The calls made while the libraries were loaded.
const std::vector<std::string>& KernelCallsAtLoad();
