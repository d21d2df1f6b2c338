#include "Editor/services/UnsavedPhases.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/PhaseText.h"

#include <algorithm>

namespace editor
{

std::optional<std::string> TextWithUnsaved(const std::vector<const CPhase*>& unsaved, std::string_view name,
                                           const FileIdentity& identity, std::string_view text)
{
    if (unsaved.empty() || ExtensionOf(name) != "phase" || !IsPhaseText(text))
        return std::nullopt;
    const auto found = std::find_if(unsaved.begin(), unsaved.end(),
                                    [&](const CPhase* pPhase) { return IsFile(pPhase->Path(), identity); });
    if (found == unsaved.end())
        return std::nullopt;
    return WithTiming(std::string(text), (*found)->GetTiming());
}

} // namespace editor
