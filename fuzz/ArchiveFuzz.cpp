#include "fuzz/ArchiveCheck.h"
#include "fuzz/Check.h"

std::string fuzz::Check(std::string_view bytes)
{
    return CheckArchive(bytes);
}
