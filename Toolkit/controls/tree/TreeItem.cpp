#include "Toolkit/controls/tree/TreeItem.h"

#include <algorithm>

namespace toolkit
{

TreeFace TreeFace::With(const TVITEM& changes) const
{
    TreeFace face = *this;
    if (changes.mask & TVIF_TEXT) {
        face.asksForText = changes.pszText == LPSTR_TEXTCALLBACK;
        face.text = face.asksForText ? LPCSTR() : changes.pszText;
    }
    if (changes.mask & TVIF_IMAGE)
        face.image = changes.iImage;
    if (changes.mask & TVIF_SELECTEDIMAGE)
        face.selectedImage = changes.iSelectedImage;
    if (changes.mask & TVIF_CHILDREN)
        face.childrenFlag = std::clamp(changes.cChildren, I_CHILDRENCALLBACK, 1);
    return face;
}

} // namespace toolkit
