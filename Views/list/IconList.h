// CIconList: a container's members as large icons with their names.
#pragma once

#include "Toolkit/graphics/ImageList.h"
#include "Views/list/ObjectsList.h"

namespace views
{
class FreeImages;
}

// Pictures are 48 pixels wide and as high as the host's bitmap IDB_LIST_ITEMS (Resources.h), whose first picture serves
// atoms without an icon. The images of rows that leave the cache are used again for rows that enter it, the longest
// unused first. The pane's caption and icon are the host's resource IDR_ICON_PANE.
class VIEWS_API CIconList : public CObjectsList
{
public:
    explicit CIconList(int bPassive = 0);
    ~CIconList() override;

protected:
    void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

private:
    CImageList m_images; // grows, never shrinks while the window lives
    int m_nDefaultImage = 0;
    const std::unique_ptr<views::FreeImages> m_pFreeImages;
};
