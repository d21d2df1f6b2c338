#include "tests/editor/StateSpy.h"

#include "Editor/model/Member.h"

#include <utility>

BOOL StateSpy::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    if (!pairs)
        *pCount = static_cast<DWORD>(active.size()) + 1;
    for (std::size_t i = 0; pairs && i < active.size(); ++i) {
        pairs[i].pAtom = CStubRef<IAtom>::Share(active[i]).Detach();
        CStubRef<IAtomContainer> pContainer;
        active[i]->GetContainer(pContainer.Receive(), IID_IAtomContainer);
        pairs[i].pContainer = pContainer.Detach();
    }
    return pairs != nullptr;
}

BOOL StateSpy::Hear(const std::string& what, IAtom* pAtom)
{
    const editor::CMember* const pMember = editor::CMember::Of(pAtom);
    m_book.Write(m_prefix + what + ' ' + (!pMember ? "-" : pMember->Container() ? pMember->ShownName() : "/"));
    if (const auto act = std::exchange(onHear, nullptr))
        act();
    return answer;
}
