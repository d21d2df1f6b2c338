// A picture file as an atom.
#pragma once

#include "Editor/model/Member.h"

namespace editor
{

class CPicture : public CMember
{
public:
    CPicture(CContainer* pContainer, UINT nIndex) : CMember(pContainer, nIndex) {}

    std::string ErrorReason() const override; // known once its icon has been wanted

protected:
    toolkit::Surface DrawIcon(CSize size) override;
};

} // namespace editor
