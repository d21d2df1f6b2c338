// A picture file as an atom.
#pragma once

#include "Editor/model/PictureMember.h"

namespace editor
{

class CPicture : public CPictureMember
{
public:
    CPicture(CContainer* pContainer, UINT nIndex) : CPictureMember(pContainer, nIndex) {}

    // What names it in a phase in that folder of the same library. Empty when nothing can; see LineFor.
    std::string LineIn(const std::string& folder, int& error) const;
};

} // namespace editor
