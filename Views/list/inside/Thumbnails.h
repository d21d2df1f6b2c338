// Inside the library: the pictures of a thumbnail list.
#pragma once

#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/graphics/Resources.h"
#include "Toolkit/window/Wnd.h"
#include "Views/host/IAtom.h"
#include "Views/host/inside/GdiHolders.h"

#include <functional>

class IAtomIcon;

namespace views
{

// A bitmap and the mask that tells where it is transparent. Empty when a bitmap is missing: drawing fails then.
class MaskedBitmap
{
public:
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

// Each picture goes into image nIndex, or into a new one when there is no such image: -1 always makes a new one. The
// image's index; -1 when the picture could not be made or no image be added.
class Thumbnails
{
public:
    explicit Thumbnails(const CWnd& list);

    UINT Add(IAtom* pAtom, UINT nIndex); // its thumbnail, else its icon
    UINT AddFolder(UINT nIndex);
    // The image becomes a thumbnail that `draw` draws.
    void Replace(UINT nIndex, bool bContainer, const std::function<BOOL(HDC hdc, CRect& rect)>& draw);

    void SetExtent(int nExtent); // of all pictures from now on, in pixels each way; 128 at first
    int GetExtent() const { return m_nExtent; }
    int GetDrawingExtent() const;

    CImageList images; // grows, never shrinks while the window lives; image 0 is the folder picture

private:
    template <class Draw>
    UINT Paint(UINT nIndex, bool bContainer, const Draw& draw);
    template <class Draw>
    bool PaintPicture(HDC hdc, bool bContainer, const Draw& draw) const;
    UINT Store(UINT nIndex, HBITMAP hPicture);

    int DrawIcon(IAtomIcon* pIcon, HDC hdc, CRect& rect) const;

    const CWnd& m_list;
    int m_nExtent = 128;
    BitmapHolder m_hCanvas; // every picture is painted on it; empty while it is in use
    MaskedBitmap m_folder, m_marker;
};

} // namespace views
