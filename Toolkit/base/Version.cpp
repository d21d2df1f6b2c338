#include "Toolkit/base/Version.h"

const char* toolkit::GetVersion()
{
    return kVersion;
}
