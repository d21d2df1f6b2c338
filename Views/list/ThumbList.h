// CThumbList: a container's members as large pictures with their names.
#pragma once

#include "Toolkit/graphics/ImageList.h"
#include "Views/host/IAtomIcon.h"
#include "Views/host/IAtomThumbnail.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/inside/FreeImages.h"
#include "Views/list/inside/MaskedBitmap.h"

#include <unordered_map>

// Pictures are 128 by 128 pixels: the atom's thumbnail, else its icon, else the host's folder picture
// (IDB_LIST_ITEMS, Resources.h), on the list's ground and in a raised frame; containers bear a marker
// (IDB_CONTAINER_MARK). The pictures of rows that leave the cache are painted over for rows that
// enter it, the longest unused first. The pane's caption and icon are the host's resource IDR_THUMBNAIL_PANE.
//
// A picture is painted once, when its row is about to be drawn: a thumbnail that shows something else later is told
// of by the editor's OnChangeAtom. Animated thumbnails stand still; those that the mouse has passed over are held
// until the view is emptied.
class VIEWS_API CThumbList : public CObjectsList
{
public:
    explicit CThumbList(int bPassive = 0);
    CThumbList(UINT nPaneKind, UINT nResourceID, int bPassive); // as CObjectsList takes them
    ~CThumbList() override;

protected:
    void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnClearContext() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point); // the control itself has no use for it
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    DECLARE_MESSAGE_MAP()

private:
    // Paints into the rectangle; 0 when it could not.
    using DrawFn = int (*)(HDC hdc, CRect& rect, void* context);

    struct ANIMDATA
    {
        UINT nFrame;
        CStubRef<IAtomThumbnail> pThumb;
    };
    struct THUMBDATA // DrawThumbFn's context
    {
        IAtomThumbnail* pThumb; // borrowed
        UINT nFrame;
    };
    struct BackBrush // the process's, behind all thumbnails; made by the first list
    {
        HBRUSH hBrush = nullptr;
        ~BackBrush() { ::DeleteBrush(hBrush); }
    };

    // Each paints a picture into image nIndex, or into a new one when there is no such image: -1 always makes a new
    // one. The image's index; -1 when the picture could not be made or no image be added.
    UINT AddThumbnail(UINT nIndex, DrawFn fn, void* context, BOOL bContainer);
    UINT AddThumbnail(IAtomIcon* pIcon, UINT nIndex);
    UINT AddThumbnail(IAtomThumbnail* pThumb, UINT nIndex, UINT nFrame);
    UINT AddThumbnail(UINT nIndex); // the folder picture

    static int DrawIconFn(HDC hdc, CRect& rect, void* context);   // IAtomIcon
    static int DrawThumbFn(HDC hdc, CRect& rect, void* context);  // THUMBDATA
    static int DrawFolderFn(HDC hdc, CRect& rect, void* context); // CThumbList

    bool PaintPicture(HDC hdc, DrawFn fn, void* context, BOOL bContainer) const;
    UINT StoreImage(UINT nIndex, HBITMAP hPicture);
    IAtom* AtomIn(int nItem) const; // borrowed; NULL when there is none
    void StartTimer();
    void ClearAnimation();

    CImageList m_images;           // grows, never shrinks while the window lives; image 0 is the folder picture
    views::BitmapHolder m_hCanvas; // every picture is painted on it; empty while it is in use
    views::MaskedBitmap m_folderBitmap, m_markerBitmap;
    std::unordered_map<int, ANIMDATA> m_animations; // by row, as it was when the mouse passed over it
    views::FreeImages m_freeImages;                 // -1 among them, of rows without an image

    static BackBrush s_backBrush;
};
