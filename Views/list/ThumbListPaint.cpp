// The pictures of the thumbnail list.
#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/inside/GdiHolders.h"
#include "Views/list/ThumbList.h"

namespace
{

constexpr CRect kWhole(0, 0, 128, 128);
constexpr int kMargin = 24;
constexpr CRect kMarker(108, 108, 124, 124); // lower right, on the margin
constexpr int kIconExtent = 48;
constexpr UINT kNone = static_cast<UINT>(-1);

bool IsContainer(CStubBaseInterface* pObject)
{
    return static_cast<bool>(CStubRef<IAtomContainer>::From(pObject));
}

} // namespace

UINT CThumbList::AddThumbnail(UINT nIndex, DrawFn fn, void* context, BOOL bContainer)
{
    try {
        const views::WindowDC window(m_hWnd);
        views::BitmapHolder hPicture = std::move(m_hCanvas);
        if (!hPicture)
            hPicture.reset(::CreateCompatibleBitmap(window.Get(), kWhole.Width(), kWhole.Height()));
        views::MemoryDC memory(::CreateCompatibleDC(window.Get())); // goes before the bitmap, which it lets go of
        if (!memory)
            return nIndex;
        ::SelectBitmap(memory.get(), hPicture.get());
        const bool bPainted = PaintPicture(memory.get(), fn, context, bContainer);
        memory.reset();
        const UINT nImage = bPainted ? StoreImage(nIndex, hPicture.get()) : kNone;
        m_hCanvas = std::move(hPicture);
        if (bPainted)
            return nImage;
    } catch (const CMemoryException&) {
        return kNone;
    }
    return AddThumbnail(nIndex);
}

// False when there is nothing to show. But the folder picture is the last resort: where it cannot be painted the
// picture stays blank, so that an image used before does not go on showing another atom.
bool CThumbList::PaintPicture(HDC hdc, DrawFn fn, void* context, BOOL bContainer) const
{
    const auto nBackground = UINT_PTR{::GetClassLong(m_hWnd, GCL_HBRBACKGROUND)};
    ::FillRect(hdc, kWhole, reinterpret_cast<HBRUSH>(nBackground));

    CRect rect = kWhole;
    rect.DeflateRect(kMargin, kMargin);
    if (!fn(hdc, rect, context) && fn != &DrawFolderFn)
        return false;
    if (bContainer) {
        CRect marker = kMarker;
        m_markerBitmap.Draw(hdc, marker);
    }
    ::DrawEdge(hdc, kWhole, EDGE_BUMP, BF_RECT);
    return true;
}

UINT CThumbList::StoreImage(UINT nIndex, HBITMAP hPicture)
{
    const HIMAGELIST hImages = m_images.GetSafeHandle();
    if (nIndex >= static_cast<UINT>(m_images.GetImageCount()))
        return static_cast<UINT>(::ImageList_Add(hImages, hPicture, nullptr));
    ::ImageList_Replace(hImages, static_cast<int>(nIndex), hPicture, nullptr);
    return nIndex;
}

UINT CThumbList::AddThumbnail(IAtomIcon* pIcon, UINT nIndex)
{
    return pIcon ? AddThumbnail(nIndex, &DrawIconFn, pIcon, IsContainer(pIcon)) : AddThumbnail(nIndex);
}

UINT CThumbList::AddThumbnail(IAtomThumbnail* pThumb, UINT nIndex, UINT nFrame)
{
    THUMBDATA data{pThumb, nFrame};
    return pThumb ? AddThumbnail(nIndex, &DrawThumbFn, &data, IsContainer(pThumb)) : AddThumbnail(nIndex);
}

UINT CThumbList::AddThumbnail(UINT nIndex)
{
    return AddThumbnail(nIndex, &DrawFolderFn, this, FALSE);
}

int CThumbList::DrawFolderFn(HDC hdc, CRect& rect, void* context)
{
    const auto* const pList = static_cast<const CThumbList*>(context);
    return pList ? pList->m_folderBitmap.Draw(hdc, rect) : 0;
}

int CThumbList::DrawIconFn(HDC hdc, CRect& rect, void* context)
{
    auto* const pIcon = static_cast<IAtomIcon*>(context);
    ICONREQUEST request{kIconExtent, kIconExtent, nullptr};
    if (!pIcon || !pIcon->GetIcon(&request))
        return 0;
    const views::IconHolder hIcon(request.hIcon);
    ICONINFO info;
    if (!::GetIconInfo(hIcon.get(), &info))
        return 0;
    return views::MaskedBitmap(info.hbmColor, info.hbmMask).Draw(hdc, rect);
}

int CThumbList::DrawThumbFn(HDC hdc, CRect& rect, void* context)
{
    const auto* const pData = static_cast<const THUMBDATA*>(context);
    if (!pData || !pData->pThumb)
        return 0;
    ::FillRect(hdc, rect, s_backBrush.hBrush);
    return pData->pThumb->Draw(hdc, rect, 0, 2, pData->nFrame);
}
