#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/desktop/WaitCursor.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/window/WindowApi.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/inside/RemovedAtoms.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"

namespace
{

// A question that cannot be asked has not been answered with yes.
bool UserAgrees()
try {
    CString strQuestion;
    strQuestion.LoadString(views::IDS_CONFIRM_REMOVE);
    const HWND hFocus = ::GetFocus();
    const int nAnswer = AfxMessageBox(strQuestion, MB_YESNO);
    if (hFocus)
        ::SetFocus(hFocus);
    return nAnswer == IDYES;
} catch (CMemoryException& e) {
    e.ReportError();
    return false;
}

} // namespace

int RemoveObjects(int bConfirm)
{
    CWaitCursor wait;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return FALSE;
    if (bConfirm && !UserAgrees())
        return TRUE;
    wait.Restore(); // the question has shown another

    views::RemovedAtoms removed;
    removed.RemoveActive(pEditor.Get());
    removed.Announce(pEditor.Get());
    return TRUE;
}
