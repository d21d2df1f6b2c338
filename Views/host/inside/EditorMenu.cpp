#include "Views/host/inside/EditorMenu.h"

#include "Toolkit/menu/Menu.h"
#include "Toolkit/window/Wnd.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <memory>

void views::ShowEditorMenu()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    const std::unique_ptr<CMenu> pMenu(pEditor ? pEditor->CreateContextMenu() : nullptr);
    if (!pMenu)
        return;
    CPoint point;
    ::GetCursorPos(&point);
    CWnd* const pOwner = CWnd::FromHandle(pEditor->GetMainWindow());
    pMenu->TrackPopupMenu(TPM_LEFTALIGN | TPM_LEFTBUTTON, point.x, point.y, pOwner);
}
