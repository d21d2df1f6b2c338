// A folder that another program drags onto the bars at the top of the window: it is opened in place of the library.
#pragma once

#include "Toolkit/exchange/DropTarget.h"

#include <functional>
#include <string>

namespace editor
{

class CAtomEditor;

// Registered for the frame, to which drags come where no view takes them. What the program itself drags is left alone.
class FolderDropTarget final : public COleDropTarget
{
public:
    // Above that height of the client area; `open` is called once the drag is over.
    FolderDropTarget(const CAtomEditor& editor, int nHeight, std::function<void(std::string path)> open) // borrowed
        : m_editor(editor), m_nHeight(nHeight), m_open(std::move(open))
    {}

    DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    void OnDragLeave(CWnd*) override { m_folder.clear(); }

private:
    const CAtomEditor& m_editor;
    const int m_nHeight;
    const std::function<void(std::string path)> m_open;
    std::string m_folder; // that is dragged, alone; empty: something else is
};

} // namespace editor
