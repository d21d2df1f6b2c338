#include "Views/list/inside/Thumbnails.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/graphics/SysColors.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomIcon.h"
#include "Views/host/IAtomThumbnail.h"
#include "Views/host/Resources.h"
#include "Views/host/StubRef.h"

#include <algorithm>

namespace
{

constexpr COLORREF kTransparent = RGB(255, 0, 0);
constexpr COLORREF kBackColor = RGB(222, 247, 254), kDarkBackColor = RGB(34, 50, 58);
constexpr int kMostMargin = 24;
constexpr int kMarkerExtent = 16, kMarkerInset = 4; // lower right, on the margin
constexpr int kUsualExtent = 128, kUsualIcon = 48;
constexpr UINT kNone = static_cast<UINT>(-1);

// The process's, behind all thumbnails; made by the first list.
HBRUSH BackBrush()
{
    struct BRUSH
    {
        const HBRUSH hBrush;
        ~BRUSH() { ::DeleteBrush(hBrush); }
    };
    static const BRUSH s_light{::CreateSolidBrush(kBackColor)}, s_dark{::CreateSolidBrush(kDarkBackColor)};
    return toolkit::IsDark() ? s_dark.hBrush : s_light.hBrush;
}

bool IsContainer(CStubBaseInterface* pObject)
{
    return static_cast<bool>(CStubRef<IAtomContainer>::From(pObject));
}

int DrawThumbnail(IAtomThumbnail* pThumb, HDC hdc, CRect& rect)
{
    ::FillRect(hdc, rect, BackBrush());
    return pThumb->Draw(hdc, rect, 0, 2, 0);
}

} // namespace

views::Thumbnails::Thumbnails(const CWnd& list)
    : m_list(list), m_folder(IDB_LIST_ITEMS, kTransparent), m_marker(IDB_CONTAINER_MARK, kTransparent)
{
    BackBrush();
}

void views::Thumbnails::SetExtent(int nExtent)
{
    m_nExtent = nExtent;
    m_hCanvas.reset();
}

int views::Thumbnails::GetDrawingExtent() const
{
    return m_nExtent - 2 * std::min(kMostMargin, m_nExtent * 3 / 16);
}

// At other sizes than the usual one icons are not scaled.
int views::Thumbnails::DrawIcon(IAtomIcon* pIcon, HDC hdc, CRect& rect) const
{
    const int nIcon = m_nExtent == kUsualExtent ? kUsualIcon : GetDrawingExtent();
    ICONREQUEST request{nIcon, nIcon, nullptr};
    if (!pIcon->GetIcon(&request))
        return 0;
    const views::IconHolder hIcon(request.hIcon);
    ICONINFO info;
    if (!::GetIconInfo(hIcon.get(), &info))
        return 0;
    return views::MaskedBitmap(info.hbmColor, info.hbmMask).Draw(hdc, rect);
}

UINT views::Thumbnails::Add(IAtom* pAtom, UINT nIndex)
{
    const auto pThumb = CStubRef<IAtomThumbnail>::From(pAtom);
    const auto pIcon = CStubRef<IAtomIcon>::From(pAtom);
    if (pThumb)
        return Paint(nIndex, IsContainer(pThumb.Get()),
                     [&](HDC hdc, CRect& rect) { return DrawThumbnail(pThumb.Get(), hdc, rect); });
    if (pIcon)
        return Paint(nIndex, IsContainer(pIcon.Get()),
                     [&](HDC hdc, CRect& rect) { return DrawIcon(pIcon.Get(), hdc, rect); });
    return kNone;
}

void views::Thumbnails::Replace(UINT nIndex, bool bContainer, const std::function<BOOL(HDC hdc, CRect& rect)>& draw)
{
    Paint(nIndex, bContainer,
          [&](HDC hdc, CRect& rect) { return ::FillRect(hdc, rect, BackBrush()), draw(hdc, rect); });
}

// The last resort: where it cannot be painted the picture stays blank, so that an image used before does not go on
// showing another atom.
UINT views::Thumbnails::AddFolder(UINT nIndex)
{
    return Paint(nIndex, false, [&](HDC hdc, CRect& rect) { return m_folder.Draw(hdc, rect), 1; });
}

// Of an object that cannot be drawn the folder is shown.
template <class Draw>
UINT views::Thumbnails::Paint(UINT nIndex, bool bContainer, const Draw& draw)
{
    try {
        const WindowDC window(m_list.m_hWnd);
        BitmapHolder hPicture = std::move(m_hCanvas);
        if (!hPicture)
            hPicture.reset(::CreateCompatibleBitmap(window.Get(), m_nExtent, m_nExtent));
        MemoryDC memory(::CreateCompatibleDC(window.Get())); // goes before the bitmap, which it lets go of
        if (!memory)
            return nIndex;
        ::SelectBitmap(memory.get(), hPicture.get());
        const bool bPainted = PaintPicture(memory.get(), bContainer, draw);
        memory.reset();
        const UINT nImage = bPainted ? Store(nIndex, hPicture.get()) : kNone;
        m_hCanvas = std::move(hPicture);
        if (bPainted)
            return nImage;
    } catch (const CMemoryException&) {
        return kNone;
    }
    return AddFolder(nIndex);
}

template <class Draw>
bool views::Thumbnails::PaintPicture(HDC hdc, bool bContainer, const Draw& draw) const
{
    const auto nBackground = UINT_PTR{::GetClassLong(m_list.m_hWnd, GCL_HBRBACKGROUND)};
    const CRect whole(0, 0, m_nExtent, m_nExtent);
    ::FillRect(hdc, whole, reinterpret_cast<HBRUSH>(nBackground));

    const int nMargin = (m_nExtent - GetDrawingExtent()) / 2;
    CRect rect = whole;
    rect.DeflateRect(nMargin, nMargin);
    if (!draw(hdc, rect))
        return false;
    if (bContainer) {
        const int nMarker = m_nExtent - kMarkerInset - kMarkerExtent;
        CRect marker(CPoint(nMarker, nMarker), CSize(kMarkerExtent, kMarkerExtent));
        m_marker.Draw(hdc, marker);
    }
    ::DrawEdge(hdc, whole, EDGE_BUMP, BF_RECT);
    return true;
}

UINT views::Thumbnails::Store(UINT nIndex, HBITMAP hPicture)
{
    const HIMAGELIST hImages = images.GetSafeHandle();
    if (nIndex >= static_cast<UINT>(images.GetImageCount()))
        return static_cast<UINT>(::ImageList_Add(hImages, hPicture, nullptr));
    ::ImageList_Replace(hImages, static_cast<int>(nIndex), hPicture, nullptr);
    return nIndex;
}
