#include "Editor/resources/EditorResources.h"

#include "Editor/resources/Drawing.h"
#include "Editor/resources/Pictograms.h"
#include "Toolkit/graphics/SysColors.h"

namespace editor
{
namespace
{

constexpr COLORREF kTransparent = RGB(255, 0, 0);

// A bitmap has no transparency but that colour: smooth edges are blended with a list's ground.
toolkit::Surface WithTransparentColor(const toolkit::Surface& picture)
{
    toolkit::Surface keyed = Flatten(picture, GetSysColor(COLOR_WINDOW));
    for (int y = 0; y < keyed.Height(); ++y)
        for (int x = 0; x < keyed.Width(); ++x)
            if (picture.At(x, y) >> 24 == 0)
                keyed.Row(y)[x] = toolkit::ToPixel(kTransparent);
    return keyed;
}

void AddPane(CResourceModule& module, UINT nID, LPCSTR pszCaption, Pictogram icon)
{
    module.AddString(nID, pszCaption);
    module.AddIcon(nID, DrawPictogram(icon, kPaneIconExtent));
}

} // namespace

void AddEditorResources(CResourceModule& module)
{
    module.AddString(IDS_NAME_FAILED, "The name cannot be shown");
    module.AddString(IDS_NOT_INSERTED, "An object could not be added to the tree.");
    module.AddString(IDS_TREE_PANE, "Library");
    module.AddString(IDS_RENAME_FAILED, "The name was not changed");
    module.AddString(IDS_CONFIRM_REMOVE, "Remove the selected objects?");
    module.AddBitmap(IDB_FOLDER, WithTransparentColor(DrawPictogram(Pictogram::Folder, kIconExtent)));
    AddPane(module, IDR_TREE_PANE, "Library", Pictogram::TreePane);
    AddPane(module, IDR_ICON_PANE, "Icons", Pictogram::IconPane);
    AddPane(module, IDR_THUMBNAIL_PANE, "Pictures", Pictogram::ThumbnailPane);
}

} // namespace editor
