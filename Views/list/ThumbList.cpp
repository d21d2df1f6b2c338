#include "Views/list/ThumbList.h"

#include "Views/host/Resources.h"

namespace
{

constexpr UINT kPaneKind = 1;
constexpr COLORREF kTransparent = RGB(255, 0, 0);
constexpr COLORREF kBackColor = RGB(222, 247, 254);
constexpr int kExtent = 128;
constexpr int kImagesToGrow = 4;
constexpr UINT kNone = static_cast<UINT>(-1);

} // namespace

BEGIN_MESSAGE_MAP(CThumbList, CObjectsList)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

CThumbList::BackBrush CThumbList::s_backBrush;

CThumbList::CThumbList(int bPassive) : CThumbList(kPaneKind, views::IDR_THUMBNAIL_PANE, bPassive) {}

CThumbList::CThumbList(UINT nPaneKind, UINT nResourceID, int bPassive)
    : CObjectsList(nPaneKind, nResourceID, bPassive),
      m_folderBitmap(views::IDB_LIST_ITEMS, kTransparent),
      m_markerBitmap(views::IDB_CONTAINER_MARK, kTransparent)
{
    if (!s_backBrush.hBrush)
        s_backBrush.hBrush = ::CreateSolidBrush(kBackColor);
}

CThumbList::~CThumbList()
{
    DestroyWindow();
}

int CThumbList::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CObjectsList::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_images.Create(kExtent, kExtent, ILC_COLOR32, 0, kImagesToGrow);
    m_freeImages.Clear(); // a former window's
    SetImageList(&m_images, LVSIL_NORMAL);
    AddThumbnail(0);
    return 0;
}

// A thumbnail that fails gives the folder picture, also where the atom has an icon.
void CThumbList::OnCacheItem(int, IAtom* pAtom, IAtomContainer*, CACHEDATA* pData)
{
    const auto pThumb = CStubRef<IAtomThumbnail>::From(pAtom);
    const auto pIcon = CStubRef<IAtomIcon>::From(pAtom);
    const UINT nFree = static_cast<UINT>(m_freeImages.Take());
    UINT nImage = kNone;
    if (pThumb)
        nImage = AddThumbnail(pThumb.Get(), nFree, 0);
    else if (pIcon)
        nImage = AddThumbnail(pIcon.Get(), nFree);
    if (nImage == kNone)
        nImage = AddThumbnail(nFree);
    pData->nImage = static_cast<int>(nImage);
}

void CThumbList::OnUncacheItem(int, IAtom*, IAtomContainer*, CACHEDATA* pData)
{
    m_freeImages.Add(pData->nImage);
}

// The images of all rows are free by now.
void CThumbList::OnClearContext()
{
    ClearAnimation();
}
