// CThumbList: a container's members as large pictures with their names.
#pragma once

#include "Views/host/IAtomThumbnail.h"
#include "Views/list/ObjectsList.h"

#include <unordered_map>

namespace views
{
class FreeImages;
class Thumbnails;
} // namespace views

// Pictures are 128 by 128 pixels unless the host says otherwise: the atom's thumbnail, else its icon, else the host's
// folder picture (IDB_LIST_ITEMS, Resources.h), on the list's ground and in a raised frame; containers bear a marker
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

    // Pictures of so many pixels each way, from 32 to 1024. The margin around what atoms draw is 24 pixels at most, and
    // three sixteenths of the picture where that is less. Selection and focus stay; rows are drawn anew, and the larger
    // the pictures the fewer rows are remembered. FALSE, and no change, for another size.
    BOOL SetPictureExtent(int nExtent);
    int GetPictureExtent() const;
    int GetDrawingExtent() const; // of what atoms draw, each way

protected:
    void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnClearContext() override;

    // For a derived class that has thumbnails move: `draw` paints the row's thumbnail as IAtomThumbnail::Draw does, at
    // once. It stays until the row is cached anew, as after OnChangeAtom. FALSE for a row that is not cached.
    BOOL DrawThumbnailAnew(int nItem, const std::function<BOOL(HDC hdc, CRect& rect)>& draw);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point); // the control itself has no use for it
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    struct ANIMDATA
    {
        UINT nFrame;
        CStubRef<IAtomThumbnail> pThumb;
    };

    void PaintAnew();                  // all pictures
    void ShowImages();                 // new ones, of which the first is the folder picture
    IAtom* AtomIn(int nItem) const;    // borrowed; NULL when there is none
    bool ContainerIn(int nItem) const; // is it one?
    void StartTimer();
    void ClearAnimation();

    const std::unique_ptr<views::Thumbnails> m_pThumbnails;
    const std::unique_ptr<views::FreeImages> m_pFreeImages; // -1 among them, of rows without an image
    std::unordered_map<int, ANIMDATA> m_animations;         // by row, as it was when the mouse passed over it
};
