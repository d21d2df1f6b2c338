// Objects from an archive, made on the disk.
#pragma once

#include "Editor/archive/ArchiveFormat.h"

#include <functional>
#include <string>

namespace editor
{

// Makes the file or folder that the record holds, under that name in the folder: whole, or not at all. The name and
// all in the record have been checked. It has the time of the original, and of its permissions those that a new file
// may have; its folders their owner may always change. Empty when it is there; else one line that names the file and
// the reason, for instance that there is something of that name: then another one is asked for, until it is empty, and
// the name becomes the one that was free. The meter counts bytes; when it is cancelled nothing is made.
std::string Unpack(const std::string& folder, std::string& name, const ArchiveRecord& record,
                   const std::function<std::string()>& anotherName, Meter* pMeter = nullptr);

} // namespace editor
