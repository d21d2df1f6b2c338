#include "Editor/views/FolderDrop.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/services/AtomEditor.h"
#include "Editor/services/DroppedFiles.h"
#include "Toolkit/message/TaskInbox.h"

#include <utility>

namespace editor
{
namespace
{

std::string OnlyFolder(COleDataObject& data)
{
    const std::vector<std::string> paths = OfferedPaths(data);
    return paths.size() == 1 && IsFolder(paths.front()) ? paths.front() : std::string();
}

} // namespace

DROPEFFECT FolderDropTarget::OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    m_folder = pDataObject && !m_editor.GetDragged() ? OnlyFolder(*pDataObject) : std::string();
    return OnDragOver(pWnd, pDataObject, dwKeyState, point);
}

DROPEFFECT FolderDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint point)
{
    return !m_folder.empty() && point.y < m_nHeight ? DROPEFFECT_COPY : DROPEFFECT_NONE;
}

BOOL FolderDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint)
{
    toolkit::PostTask([open = m_open, folder = std::exchange(m_folder, {})] { open(folder); });
    return TRUE;
}

} // namespace editor
