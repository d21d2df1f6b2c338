// What the frame says about what it shows.
#pragma once

#include "Editor/model/Member.h"
#include "Editor/pictures/PictureStore.h"
#include "Editor/views/EditorList.h"
#include "Editor/widgets/StatusBar.h"

namespace editor
{

Status DescribePicture(const CMember& picture, const PictureStore& pictures, double dZoom); // 0: it fits
// pShown may be NULL. nHidden objects of it are not in the list.
Status DescribeList(const CEditorList& list, int nHidden, const CMember* pShown, const PictureStore& pictures);
std::string DescribeEmptyList(const CMember* pShown); // may be NULL

} // namespace editor
