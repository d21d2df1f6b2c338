// What is the editor's own about its drags.
#include "Editor/services/AtomEditor.h"
#include "Editor/services/OfferedFiles.h"
#include "Editor/services/Troubles.h"
#include "Views/host/Services.h"

namespace editor
{
namespace
{

std::string WhyOneIsThere(const ActiveMember& member)
{
    const auto* const pContainer = dynamic_cast<const CContainer*>(member.pContainer.Get());
    std::string reason = pContainer ? pContainer->WhyItStayed(member.pAtom->GetID()) : std::string();
    if (reason.empty() && !member.MayGo())
        reason = ShownNameOf(member.pAtom.Get()) + ": it cannot be removed";
    return reason;
}

} // namespace

CAtomEditor& CAtomEditor::Current()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    return dynamic_cast<CAtomEditor&>(*pEditor.Get());
}

void CAtomEditor::OfferMore(COleDataSource& source, const ActiveMembers& members)
{
    OfferFiles(source, PathsOf(members));
}

std::shared_ptr<void> CAtomEditor::BeginDrag()
{
    struct Drag
    {
        History::Step step;
        ActiveMembers members;
    };
    const auto pDrag = std::shared_ptr<Drag>(new Drag{History::Step(&m_history), GetActiveMembers(*this)});
    m_pDragged = std::shared_ptr<const ActiveMembers>(pDrag, &pDrag->members);
    return pDrag;
}

std::shared_ptr<void> CAtomEditor::BeginRemoval(const ActiveMembers& members)
{
    struct Removal
    {
        Removal(LongWork& work, const ActiveMembers& members)
            : command(work, "Moving", Progress::Unit::Objects), joint(members)
        {
            work.GetMeter().SetTotal(members.size());
        }

        LongWork::Command command;
        JointRemoval joint;
    };
    return std::make_shared<Removal>(m_work, members);
}

void CAtomEditor::TellOfFailedDrag()
{
    if (!m_work.TakeCancelled())
        hostkit::CAtomEditor::TellOfFailedDrag();
}

// The container's own error may be that of a change since: what else had been cut is put back, and is there as well.
std::string CAtomEditor::WhyStillThere(const ActiveMembers& members) const
{
    Troubles troubles;
    for (const ActiveMember& member : members)
        troubles.Add(member.IsThere() ? WhyOneIsThere(member) : std::string());
    return troubles.Text();
}

} // namespace editor
