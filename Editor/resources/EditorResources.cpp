#include "Editor/resources/EditorResources.h"

#include "Views/host/Resources.h"

#include <utility>

namespace editor
{
namespace
{

constexpr std::pair<UINT, LPCSTR> kTexts[] = {
    {views::IDS_TREE_PANE, "Library"},
    {views::IDR_TREE_PANE, "Library"},
    {views::IDR_THUMBNAIL_PANE, "Thumbnails"},
    {IDS_SAVE_FAILED, "Not everything was saved"},
    {IDS_DROP_FAILED, "Not everything was taken"},
    {IDS_NEW_FAILED, "Nothing new was made"},
    {IDS_RESTORE_FAILED, "Nothing was restored"},
    {IDS_NAME_REFUSED, "The name is not taken"},
    {IDS_FOLLOW_FAILED, "Not all phases show it now"},
};

} // namespace

void AddEditorResources(CResourceModule& module)
{
    hostkit::AddDefaultResources(module);
    for (const auto& [nID, pszText] : kTexts)
        module.AddString(nID, pszText);
}

} // namespace editor
