#include "Editor/services/ActiveMembers.h"

#include "Editor/model/Container.h"
#include "Editor/model/ErrorInfo.h"

#include <utility>

namespace editor
{

ActiveMembers GetActiveMembers(IAtomEditor& editor)
{
    ActiveMembers members;
    editor.EnumActivePairs(
        [](IAtom* pAtom, IAtomContainer* pContainer, void* pContext) -> BOOL {
            static_cast<ActiveMembers*>(pContext)->push_back(
                {CStubRef<IAtom>::Share(pAtom), CStubRef<IAtomContainer>::Share(pContainer)});
            return TRUE;
        },
        &members);
    return members;
}

std::string ShownNameOf(IAtom* pAtom)
{
    const CMember* const pMember = CMember::Of(pAtom);
    return pMember ? pMember->ShownName() : std::string("an object");
}

std::string ErrorOf(IAtomContainer* pContainer, std::string otherwise)
{
    std::string line = CErrorInfo::LineOf(CStubRef<IMyErrorInfo>::From(pContainer).Get());
    return line.empty() ? std::move(otherwise) : line;
}

// The container's own error may be that of a change since: what else had been cut is put back.
std::string WhyStillThere(const ActiveMembers& members)
{
    for (const ActiveMember& member : members) {
        if (!member.IsThere())
            continue;
        const auto* const pContainer = dynamic_cast<const CContainer*>(member.pContainer.Get());
        const std::string reason = pContainer ? pContainer->WhyItStayed(member.pAtom->GetID()) : std::string();
        if (reason.empty() && !(member.pContainer->GetPermissions(member.pAtom.Get()) & APF_REMOVE))
            return ShownNameOf(member.pAtom.Get()) + ": it cannot be removed";
        return reason;
    }
    return {};
}

} // namespace editor
