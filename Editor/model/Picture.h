// A picture file as an atom.
#pragma once

#include "Editor/model/PictureMember.h"

namespace editor
{

class CPicture : public CPictureMember
{
public:
    CPicture(CContainer* pContainer, UINT nIndex) : CPictureMember(pContainer, nIndex) {}
};

} // namespace editor
