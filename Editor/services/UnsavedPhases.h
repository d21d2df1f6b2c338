// What the user has set of phases and not saved yet travels with them.
#pragma once

#include "Editor/model/Phase.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// Of a phase, what the user has set of it; good without the phase.
struct UnsavedTiming
{
    std::string path;
    PhaseTiming timing;
};
std::vector<UnsavedTiming> UnsavedTimings(const std::vector<const CPhase*>& unsaved);

// What travels of a file with that name and text: the text with its timing, when it is the file of one of the phases.
// Nothing for every other file. The disk stays as it is.
std::optional<std::string> TextWithUnsaved(const std::vector<UnsavedTiming>& unsaved, std::string_view name,
                                           const FileIdentity& identity, std::string_view text);

} // namespace editor
