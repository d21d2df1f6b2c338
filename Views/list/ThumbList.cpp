#include "Views/list/ThumbList.h"

#include "Views/host/IAtomContainer.h"
#include "Views/host/Resources.h"
#include "Views/list/inside/FreeImages.h"
#include "Views/list/inside/Thumbnails.h"

#include <algorithm>

namespace
{

constexpr UINT kPaneKind = 1;
constexpr int kLeastExtent = 32, kMostExtent = 1024;
constexpr int kImagesToGrow = 4;
constexpr int kMostRows = 1024;
constexpr int kMostPixels = kMostRows * 128 * 128; // of the rows remembered, unless more are in sight
constexpr UINT kNone = static_cast<UINT>(-1);

} // namespace

BEGIN_MESSAGE_MAP(CThumbList, CObjectsList)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_SHOWWINDOW()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

CThumbList::CThumbList(int bPassive) : CThumbList(kPaneKind, views::IDR_THUMBNAIL_PANE, bPassive) {}

CThumbList::CThumbList(UINT nPaneKind, UINT nResourceID, int bPassive)
    : CObjectsList(nPaneKind, nResourceID, bPassive),
      m_pThumbnails(std::make_unique<views::Thumbnails>(*this)),
      m_pFreeImages(std::make_unique<views::FreeImages>())
{}

CThumbList::~CThumbList()
{
    DestroyWindow();
}

int CThumbList::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CObjectsList::OnCreate(lpCreateStruct) == -1)
        return -1;
    ShowImages();
    return 0;
}

void CThumbList::ShowImages()
{
    const int nExtent = GetPictureExtent();
    m_pThumbnails->images.Create(nExtent, nExtent, ILC_COLOR32, 0, kImagesToGrow);
    m_pFreeImages->Clear(); // of former images
    SetImageList(&m_pThumbnails->images, LVSIL_NORMAL);
    m_pThumbnails->AddFolder(0);
}

BOOL CThumbList::SetPictureExtent(int nExtent)
{
    if (nExtent < kLeastExtent || nExtent > kMostExtent)
        return FALSE;
    if (nExtent == GetPictureExtent())
        return TRUE;
    SetCacheLimit(std::min(kMostRows, kMostPixels / (nExtent * nExtent)));
    m_pThumbnails->SetExtent(nExtent);
    if (m_hWnd)
        PaintAnew();
    return TRUE;
}

void CThumbList::PaintAnew()
{
    ForgetCache();
    m_pThumbnails->images.DeleteImageList();
    ShowImages();
    Invalidate();
}

// Pictures are painted on the list's ground.
void CThumbList::OnSysColorChange()
{
    PaintAnew();
    CObjectsList::OnSysColorChange();
}

int CThumbList::GetPictureExtent() const
{
    return m_pThumbnails->GetExtent();
}

int CThumbList::GetDrawingExtent() const
{
    return m_pThumbnails->GetDrawingExtent();
}

// A thumbnail that fails gives the folder picture, also where the atom has an icon.
void CThumbList::OnCacheItem(int, IAtom* pAtom, IAtomContainer*, CACHEDATA* pData)
{
    const UINT nFree = static_cast<UINT>(m_pFreeImages->Take());
    UINT nImage = m_pThumbnails->Add(pAtom, nFree);
    if (nImage == kNone)
        nImage = m_pThumbnails->AddFolder(nFree);
    pData->nImage = static_cast<int>(nImage);
}

void CThumbList::OnUncacheItem(int, IAtom*, IAtomContainer*, CACHEDATA* pData)
{
    m_pFreeImages->Add(pData->nImage);
}

// The images of all rows are free by now.
void CThumbList::OnClearContext()
{
    ClearAnimation();
}

BOOL CThumbList::DrawThumbnailAnew(int nItem, const std::function<BOOL(HDC hdc, CRect& rect)>& draw)
{
    const int nImage = GetCachedImage(nItem);
    if (nImage < 0)
        return FALSE;
    m_pThumbnails->Replace(static_cast<UINT>(nImage), ContainerIn(nItem), draw);
    CRect icon;
    if (GetItemRect(nItem, &icon, LVIR_ICON))
        ::InvalidateRect(m_hWnd, &icon);
    return TRUE;
}

bool CThumbList::ContainerIn(int nItem) const
{
    return static_cast<bool>(CStubRef<IAtomContainer>::From(AtomIn(nItem)));
}
