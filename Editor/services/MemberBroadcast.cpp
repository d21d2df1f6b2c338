#include "Editor/services/MemberBroadcast.h"

#include "Editor/model/Phase.h"

namespace editor
{

void TellOf(CAtomEditor& editor, CContainer& container, const MemberNews& news)
{
    const auto pHeld = CStubRef<CContainer>::Share(&container);
    const auto tell = [&](AEStateOperation operation, IAtom* pAtom) {
        editor.NotifyHandlers(nullptr, operation, pAtom, &container, 0);
    };
    for (const auto& [pFormer, pNow] : news.renamed) {
        tell(&IAEStateHandler::OnCreateAtom, pNow.Get());
        tell(&IAEStateHandler::OnDeleteAtom, pFormer.Get());
    }
    if (news.isOther)
        tell(&IAEStateHandler::OnDeleteAtom, nullptr);
    else
        for (const auto& pMember : news.come)
            tell(&IAEStateHandler::OnCreateAtom, pMember.Get());
    for (const auto& pMember : news.written)
        tell(&IAEStateHandler::OnChangeAtom, pMember.Get());
}

void ReadAgainAndTell(CAtomEditor& editor, CContainer& container)
{
    const auto pHeld = CStubRef<CContainer>::Share(&container);
    MemberNews news;
    container.ReadAgain(news);
    TellOf(editor, container, news);
    if (auto* const pPhase = dynamic_cast<CPhase*>(&container))
        editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pPhase, pPhase->Container(), 0);
}

} // namespace editor
