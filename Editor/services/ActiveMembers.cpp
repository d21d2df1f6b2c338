#include "Editor/services/ActiveMembers.h"

#include "Editor/model/ErrorInfo.h"
#include "Editor/model/Member.h"

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

std::string WhyStillThere(const ActiveMembers& members)
{
    for (const ActiveMember& member : members)
        if (member.IsThere())
            return ErrorOf(member.pContainer.Get(), ShownNameOf(member.pAtom.Get()) + ": it cannot be removed");
    return {};
}

} // namespace editor
