#include "Editor/services/UnsavedPhases.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/PhaseText.h"

#include <algorithm>

namespace editor
{

std::vector<UnsavedTiming> UnsavedTimings(const std::vector<const CPhase*>& unsaved)
{
    std::vector<UnsavedTiming> timings;
    for (const CPhase* const pPhase : unsaved)
        timings.push_back({pPhase->Path(), pPhase->GetTiming()});
    return timings;
}

std::optional<std::string> TextWithUnsaved(const std::vector<UnsavedTiming>& unsaved, std::string_view name,
                                           const FileIdentity& identity, std::string_view text)
{
    if (unsaved.empty() || ExtensionOf(name) != "phase" || !IsPhaseText(text))
        return std::nullopt;
    const auto found = std::find_if(unsaved.begin(), unsaved.end(),
                                    [&](const UnsavedTiming& one) { return IsFile(one.path, identity); });
    if (found == unsaved.end())
        return std::nullopt;
    return WithTiming(std::string(text), found->timing);
}

} // namespace editor
