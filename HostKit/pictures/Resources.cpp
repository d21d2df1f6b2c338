#include "HostKit/pictures/Resources.h"

#include "HostKit/pictures/Pictograms.h"
#include "Views/host/Resources.h"

#include <algorithm>
#include <utility>

namespace hostkit
{
namespace
{

constexpr std::pair<UINT, LPCSTR> kTexts[] = {
    {views::IDS_NAME_FAILED, "The name cannot be shown"},
    {views::IDS_NOT_INSERTED, "An object could not be added to the tree."},
    {views::IDS_TREE_PANE, "Objects"},
    {views::IDS_RENAME_FAILED, "The name was not changed"},
    {views::IDS_CONFIRM_REMOVE, "Remove the selected objects?"},
    {IDS_COPY_FAILED, "Nothing was copied"},
    {IDS_CUT_FAILED, "Nothing was cut"},
    {IDS_PASTE_FAILED, "Not everything was pasted"},
    {IDS_NOTHING_PASTED, "Nothing was pasted"},
    {IDS_REMOVE_FAILED, "Not everything was removed"},
    {IDS_DRAG_FAILED, "Nothing can be dragged"},
    {IDS_MOVE_FAILED, "Not everything went from its former place"},
};

constexpr COLORREF kTransparent = RGB(255, 0, 0);

// Smooth edges keep their alpha; only what is wholly transparent bears the colour.
toolkit::Surface OnTransparentGround(toolkit::Surface picture)
{
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if (picture.At(x, y) >> 24 == 0)
                picture.Row(y)[x] = toolkit::ToPixel(kTransparent);
    return picture;
}

toolkit::Surface SideBySide(const toolkit::Surface& left, const toolkit::Surface& right)
{
    toolkit::Surface both({left.Width() + right.Width(), left.Height()});
    both.SetScale(left.Scale());
    for (int y = 0; y < left.Height(); ++y) {
        std::copy_n(left.Row(y), left.Width(), both.Row(y));
        std::copy_n(right.Row(y), right.Width(), both.Row(y) + left.Width());
    }
    return both;
}

void AddPane(CResourceModule& module, UINT nID, LPCSTR pszCaption, Pictogram icon)
{
    module.AddString(nID, pszCaption);
    module.AddIcon(nID, DrawPictogram(icon, kPaneIconExtent));
}

} // namespace

void AddDefaultResources(CResourceModule& module)
{
    for (const auto& [nID, pszText] : kTexts)
        module.AddString(nID, pszText);
    module.AddBitmap(views::IDB_LIST_ITEMS, OnTransparentGround(DrawPictogram(Pictogram::Folder, kIconExtent)));
    module.AddBitmap(views::IDB_CONTAINER_MARK, OnTransparentGround(DrawPictogram(Pictogram::Folder, kMarkExtent)));
    module.AddBitmap(views::IDB_TREE_ITEMS,
                     OnTransparentGround(SideBySide(DrawPictogram(Pictogram::Placeholder, kTreeIconExtent),
                                                    DrawPictogram(Pictogram::Folder, kTreeIconExtent))));
    AddPane(module, views::IDR_TREE_PANE, "Objects", Pictogram::TreePane);
    AddPane(module, views::IDR_ICON_PANE, "Icons", Pictogram::IconPane);
    AddPane(module, views::IDR_THUMBNAIL_PANE, "Thumbnails", Pictogram::ThumbnailPane);
}

} // namespace hostkit
