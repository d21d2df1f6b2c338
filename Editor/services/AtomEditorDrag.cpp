// What is the editor's own about its drags.
#include "Editor/services/AtomEditor.h"
#include "Editor/services/OfferedFiles.h"

namespace editor
{

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
            : command(&work, "Moving", Progress::Unit::Objects), joint(members)
        {
            work.GetMeter().SetTotal(members.size());
        }

        LongWork::Command command;
        JointRemoval joint;
    };
    auto pRemoval = std::make_shared<Removal>(m_work, members);
    ForgetWhatStayed(members);
    return pRemoval;
}

void CAtomEditor::TellOfFailedDrag()
{
    if (!m_work.TakeCancelled())
        hostkit::CAtomEditor::TellOfFailedDrag();
}

std::string CAtomEditor::WhyStillThere(const ActiveMembers& members) const
{
    return editor::WhyStillThere(members);
}

} // namespace editor
