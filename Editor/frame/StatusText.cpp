#include "Editor/frame/StatusText.h"

#include "Editor/model/Phase.h"

#include <cmath>

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
    const std::string format = pictures.FormatOf(member.Path());
    return member.ShownName() + ": " + std::to_string(size.cx) + " x " + std::to_string(size.cy) + " pixels" +
           (format.empty() ? "" : ", " + format);
}

Status Describe(std::string text, const CMember& member, const PictureStore& pictures)
{
    const std::string error = member.ErrorLine();
    return {std::move(text), error.empty() ? WithSize(member, pictures) : error, !error.empty()};
}

} // namespace

Status DescribePicture(const CMember& picture, const PictureStore& pictures, double dZoom)
{
    return Describe(dZoom == 0 ? "" : std::to_string(std::lround(dZoom * 100)) + " %", picture, pictures);
}

Status DescribeList(const CEditorList& list, int nHidden, const CMember* pShown, const PictureStore& pictures)
{
    const int nSelected = list.GetSelectedCount();
    std::string text = CountText(list.GetItemCount());
    if (nHidden > 0)
        text += ", " + std::to_string(nHidden) + " hidden";
    if (nSelected > 0)
        text += ", " + std::to_string(nSelected) + " selected";
    if (nSelected == 1) {
        const CStubRef<IAtom> pAtom = list.GetAtom(list.GetNextItem(-1, LVNI_SELECTED));
        if (const CMember* const pMember = CMember::Of(pAtom.Get()))
            return Describe(std::move(text), *pMember, pictures);
    }
    const std::string error = pShown ? pShown->ErrorLine() : std::string();
    return {std::move(text), error, !error.empty()};
}

std::string DescribeEmptyList(const CMember* pShown)
{
    if (!pShown)
        return "Reading ..."; // the first folder
    std::string error = pShown->ErrorLine();
    if (!error.empty())
        return error;
    return dynamic_cast<const CPhase*>(pShown) ? "This phase names no pictures." : "This folder is empty.";
}

} // namespace editor
