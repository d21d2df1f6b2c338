// Input that has waited is handled.
#pragma once

namespace toolkit
{
bool RunOneInput(); // false when there is none
void ResetInput();  // nothing waits, no key is down, the mouse is nowhere: another desktop begins
} // namespace toolkit
