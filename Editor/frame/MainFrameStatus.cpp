// What the frame says about what it shows.
#include "Editor/frame/MainFrame.h"
#include "Editor/model/Phase.h"

namespace editor
{
namespace
{

std::string CountText(int count)
{
    return std::to_string(count) + (count == 1 ? " object" : " objects");
}

std::string WithSize(const CMember& member, const PictureStore& pictures)
{
    const CSize size = pictures.FullSizeOf(member.Path());
    if (size == CSize())
        return member.ShownName();
    return member.ShownName() + ": " + std::to_string(size.cx) + " x " + std::to_string(size.cy) + " pixels";
}

Status Describe(std::string text, const CMember& member, const PictureStore& pictures)
{
    const std::string error = member.ErrorLine();
    return {std::move(text), error.empty() ? WithSize(member, pictures) : error, !error.empty()};
}

} // namespace

Status CMainFrame::GetStatus() const
{
    return IsPictureShown() ? DescribePicture() : DescribeList();
}

Status CMainFrame::DescribePicture() const
{
    return Describe({}, *Shown(), m_pictures);
}

Status CMainFrame::DescribeList() const
{
    const int nSelected = m_pList->GetSelectedCount();
    std::string text = CountText(m_pList->GetItemCount());
    if (nSelected > 0)
        text += ", " + std::to_string(nSelected) + " selected";
    if (nSelected == 1) {
        const CStubRef<IAtom> pAtom = m_pList->GetAtom(m_pList->GetNextItem(-1, LVNI_SELECTED));
        if (const CMember* const pMember = CMember::Of(pAtom.Get()))
            return Describe(std::move(text), *pMember, m_pictures);
    }
    const std::string error = Shown() ? Shown()->ErrorLine() : std::string();
    return {std::move(text), error, !error.empty()};
}

std::string CMainFrame::DescribeEmptyList() const
{
    if (!Shown())
        return {};
    const std::string error = Shown()->ErrorLine();
    if (!error.empty())
        return error;
    return dynamic_cast<const CPhase*>(Shown()) ? "This phase names no pictures." : "There are no pictures here.";
}

} // namespace editor
