// What other programs get of objects: the files themselves, where they are.
#pragma once

#include "Editor/services/ActiveMembers.h"
#include "Toolkit/exchange/DataSource.h"

#include <string>
#include <vector>

namespace editor
{

std::vector<std::string> PathsOf(const ActiveMembers& members); // of those that have files

// As a list of URIs. Without memory nothing is offered: the editors can still exchange the objects.
void OfferFiles(COleDataSource& source, const std::vector<std::string>& paths);
// The same as file managers know what was copied; and a single picture as itself, for programs that draw, unless it is
// very large.
void OfferCopiedFiles(COleDataSource& source, const std::vector<std::string>& paths);

} // namespace editor
