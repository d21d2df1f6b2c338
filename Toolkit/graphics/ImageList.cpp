#include "Toolkit/graphics/ImageList.h"

#include "Toolkit/graphics/GdiObjects.h"
#include "Toolkit/graphics/ImageStore.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/Resources.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/graphics/Transparency.h"

#include <utility>

using toolkit::ImageStore;
using toolkit::Surface;

namespace
{

ImageStore* FindStore(HIMAGELIST himl)
{
    return toolkit::AllGdiObjects().imageLists.Find(himl);
}

bool HasRoomFor(const Surface& picture, CSize image)
{
    return picture.Size().cx >= image.cx && picture.Size().cy >= image.cy;
}

// The image becomes the picture's part at that coordinate of its upper edge, as many pixels as the list's images have.
void PutPart(ImageStore& store, int i, const Surface& picture, int left)
{
    const CRect part = picture.Scale().ToPixels(CRect({left, 0}, store.ImageSize()));
    if (part.Size() == store.ImagePixels())
        return store.Put(i, picture, part.TopLeft());
    store.Put(i, toolkit::ScaleSurface(toolkit::Crop(picture, part), store.ImagePixels()), {});
}

// Appends every image that the picture's width has room for; the first one's index, -1 when there is none.
int AppendImages(ImageStore& store, const Surface& picture)
{
    const CSize size = store.ImageSize();
    if (!HasRoomFor(picture, size))
        return -1;
    const int images = picture.Size().cx / size.cx;
    const int first = store.Append(images);
    for (int i = 0; i < images; ++i)
        PutPart(store, first + i, picture, i * size.cx);
    return first;
}

// NULL for a size that images cannot have.
std::unique_ptr<ImageStore> MakeStore(int cx, int cy, int growBy)
{
    if (cx < 1 || cx > ImageStore::kMostExtent || cy < 1 || cy > ImageStore::kMostExtent)
        return nullptr;
    return std::make_unique<ImageStore>(CSize(cx, cy), growBy);
}

// Calls use(picture) with the bitmap as its mask leaves it. False when either handle is refused or they differ in size.
template <class Use>
bool UseMasked(HBITMAP hbmImage, HBITMAP hbmMask, Use use)
{
    const Surface* pPicture = toolkit::BitmapSurface(hbmImage);
    const Surface* pMask = toolkit::BitmapSurface(hbmMask);
    if (!pPicture || (hbmMask && (!pMask || pMask->Bounds() != pPicture->Bounds())))
        return false;
    return pMask ? use(toolkit::WithMask(*pPicture, *pMask)) : use(*pPicture);
}

// The icon on a transparent ground of that size, in pixels.
Surface FitIcon(const Surface& icon, CSize size)
{
    const Surface scaled = toolkit::ScaleSurface(icon, toolkit::FitInto(icon.Bounds().Size(), size));
    Surface fitted(size);
    const CPoint at = toolkit::Centred(scaled.Bounds().Size(), fitted.Bounds());
    for (int y = 0; y < scaled.Height(); ++y)
        std::copy_n(scaled.Row(y), scaled.Width(), fitted.Row(at.y + y) + at.x);
    return fitted;
}

} // namespace

HIMAGELIST ImageList_Create(int cx, int cy, UINT, int, int cGrow)
{
    std::unique_ptr<ImageStore> pStore = MakeStore(cx, cy, cGrow);
    return pStore ? toolkit::AllGdiObjects().imageLists.Add(std::move(pStore)) : nullptr;
}

HIMAGELIST ImageList_LoadBitmap(UINT nID, int cx, int cGrow, COLORREF crMask)
{
    const Surface* pPicture = toolkit::FindBitmapResource(nID);
    std::unique_ptr<ImageStore> pStore = pPicture ? MakeStore(cx, pPicture->Size().cy, cGrow) : nullptr;
    if (!pStore || AppendImages(*pStore, toolkit::WithTransparentColor(*pPicture, crMask)) < 0)
        return nullptr;
    return toolkit::AllGdiObjects().imageLists.Add(std::move(pStore));
}

BOOL ImageList_Destroy(HIMAGELIST himl)
{
    return toolkit::AllGdiObjects().imageLists.Remove(himl) != nullptr;
}

int ImageList_GetImageCount(HIMAGELIST himl)
{
    const ImageStore* pStore = FindStore(himl);
    return pStore ? pStore->GetCount() : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST himl, int* cx, int* cy)
{
    const ImageStore* pStore = FindStore(himl);
    if (!pStore)
        return FALSE;
    *cx = pStore->ImageSize().cx;
    *cy = pStore->ImageSize().cy;
    return TRUE;
}

int ImageList_Add(HIMAGELIST himl, HBITMAP hbmImage, HBITMAP hbmMask)
{
    ImageStore* pStore = FindStore(himl);
    int first = -1;
    if (pStore)
        UseMasked(hbmImage, hbmMask, [&](const Surface& picture) {
            first = AppendImages(*pStore, picture);
            return true;
        });
    return first;
}

BOOL ImageList_Replace(HIMAGELIST himl, int i, HBITMAP hbmImage, HBITMAP hbmMask)
{
    ImageStore* pStore = FindStore(himl);
    if (!pStore || !pStore->Has(i))
        return FALSE;
    return UseMasked(hbmImage, hbmMask, [=](const Surface& picture) {
        if (!HasRoomFor(picture, pStore->ImageSize()))
            return false;
        PutPart(*pStore, i, picture, 0);
        return true;
    });
}

int ImageList_ReplaceIcon(HIMAGELIST himl, int i, HICON hIcon)
{
    ImageStore* pStore = FindStore(himl);
    const Surface* pIcon = toolkit::IconSurface(hIcon);
    if (!pStore || !pIcon || (i != -1 && !pStore->Has(i)))
        return -1;
    const bool bFits = pIcon->Bounds().Size() == pStore->ImagePixels();
    const Surface fitted = bFits ? Surface() : FitIcon(*pIcon, pStore->ImagePixels());
    const int index = i == -1 ? pStore->Append(1) : i;
    pStore->Put(index, bFits ? *pIcon : fitted, {});
    return index;
}

BOOL ImageList_Draw(HIMAGELIST himl, int i, HDC hdc, int x, int y, UINT style)
{
    const ImageStore* pStore = FindStore(himl);
    if (!pStore || !pStore->Has(i))
        return FALSE;
    if (!(style & ILD_BLEND25))
        return toolkit::DrawSurface(hdc, {x, y}, pStore->BlockOf(i), pStore->PlaceOf(i));

    Surface tinted = toolkit::Crop(pStore->BlockOf(i), pStore->PlaceOf(i));
    const toolkit::Pixel tint = toolkit::ToPixel(GetSysColor(COLOR_HIGHLIGHT));
    for (int row = 0; row < tinted.Height(); ++row)
        toolkit::TintRow(tinted.Row(row), tinted.Width(), tint);
    return toolkit::DrawSurface(hdc, {x, y}, tinted);
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    DeleteImageList();
    m_hImageList = ImageList_Create(cx, cy, nFlags, nInitial, nGrow);
    return m_hImageList != nullptr;
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    DeleteImageList();
    m_hImageList = ImageList_LoadBitmap(nBitmapID, cx, nGrow, crMask);
    return m_hImageList != nullptr;
}
