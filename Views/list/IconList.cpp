#include "Views/list/IconList.h"

#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomIcon.h"
#include "Views/host/Resources.h"
#include "Views/list/inside/FreeImages.h"

namespace
{

constexpr UINT kPaneKind = 1;
constexpr int kImageWidth = 48;
constexpr int kImagesToGrow = 4;
constexpr COLORREF kTransparent = RGB(255, 0, 0);

} // namespace

BEGIN_MESSAGE_MAP(CIconList, CObjectsList)
    ON_WM_CREATE()
END_MESSAGE_MAP()

CIconList::CIconList(int bPassive)
    : CObjectsList(kPaneKind, views::IDR_ICON_PANE, bPassive), m_pFreeImages(std::make_unique<views::FreeImages>())
{}

CIconList::~CIconList()
{
    DestroyWindow();
}

// Without the bitmap the view works, but shows no pictures.
int CIconList::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CObjectsList::OnCreate(lpCreateStruct) == -1)
        return -1;
    try {
        m_images.Create(views::IDB_LIST_ITEMS, kImageWidth, kImagesToGrow, kTransparent);
    } catch (const CMemoryException&) {
        // As without the bitmap.
    }
    m_pFreeImages->Clear(); // a former window's
    m_nDefaultImage = 0;
    SetImageList(&m_images, LVSIL_NORMAL);
    return 0;
}

// A free image that turns out not to be needed is not given back: the list may hold one more image than it shows.
void CIconList::OnCacheItem(int, IAtom* pAtom, IAtomContainer*, CACHEDATA* pData)
{
    const auto pIcon = CStubRef<IAtomIcon>::From(pAtom);
    const int nFree = m_pFreeImages->Take();
    int nImage = -1;
    try {
        nImage = pIcon ? pIcon->AddToImageList(m_images.GetSafeHandle(), nFree) : -1;
    } catch (const CMemoryException&) {
        // As for an icon that fails.
    }
    pData->nImage = nImage != -1 ? nImage : m_nDefaultImage;
}

void CIconList::OnUncacheItem(int, IAtom*, IAtomContainer*, CACHEDATA* pData)
{
    if (pData->nImage != m_nDefaultImage)
        m_pFreeImages->Add(pData->nImage);
}
