// Inside the library: a bitmap and the mask that tells where it is transparent.
#pragma once

#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/Resources.h"
#include "Views/host/inside/GdiHolders.h"

namespace views
{

// Empty when a bitmap is missing: drawing fails then.
class MaskedBitmap
{
public:
    MaskedBitmap() = default;
    MaskedBitmap(HBITMAP hPicture, HBITMAP hMask) : m_hPicture(hPicture), m_hMask(hMask) {} // takes both over
    // The host's bitmap resource, transparent where it is of that colour.
    MaskedBitmap(UINT nResourceID, COLORREF crTransparent)
        : m_hPicture(::LoadBitmap(nResourceID)), m_hMask(::CreateMaskBitmap(m_hPicture.get(), crTransparent))
    {}

    int Draw(HDC hdc, CRect& rect) const
    {
        return ::DrawThumbnailProportional(hdc, rect, m_hPicture.get(), m_hMask.get(), nullptr, nullptr);
    }

private:
    BitmapHolder m_hPicture, m_hMask;
};

} // namespace views
