#include "HostKit/atoms/Commands.h"

#include "HostKit/atoms/AtomEditor.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"
#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/window/WindowApi.h"
#include "Views/clipboard/clipboard.h"
#include "Views/host/IArchive.h"
#include "Views/host/Services.h"

namespace hostkit
{
namespace
{

CStubRef<IArchive> ArchiveOnClipboard(CLIPFORMAT cfAtoms, std::string& trouble)
{
    COleDataObject data;
    STGMEDIUM medium{};
    if (!data.AttachClipboard() || !data.IsDataAvailable(cfAtoms)) {
        trouble = "there are no objects on the clipboard";
        return nullptr;
    }
    CStubRef<IArchive> pArchive;
    ::SetLastError(ERROR_SUCCESS);
    if (data.GetData(cfAtoms, &medium)) {
        pArchive = CStubRef<IArchive>::Adopt(ArchiveFromStgMedium(medium));
        ReleaseStgMedium(&medium);
    }
    if (!pArchive)
        trouble = ::GetLastError() == ERROR_FILE_NOT_FOUND ? "what was copied is not there any more" : kCannotBeRead;
    return pArchive;
}

} // namespace

std::string PasteAtoms(CAtomEditor& editor, IAtomContainer* pContainer)
{
    std::string trouble;
    const CStubRef<IArchive> pArchive = ArchiveOnClipboard(editor.GetClipboardFormat(), trouble);
    if (!pArchive)
        return trouble;
    const bool bMay = CheckPaste(pArchive.Get(), pContainer, FALSE) != PASTE_REFUSED;
    const bool bDone = bMay && PasteObjects(pArchive.Get(), pContainer, FALSE);
    if (bDone || !editor.GetArchiveError().empty())
        return editor.GetArchiveError();
    return ErrorOf(pContainer, ShownNameOf(pContainer) + (bMay ? ": it does not take all of these objects"
                                                               : ": it does not take these objects"));
}

std::string ErrorOf(IAtomContainer* pContainer, std::string otherwise)
{
    std::string line = CErrorInfo::LineOf(CStubRef<IMyErrorInfo>::From(pContainer).Get());
    return line.empty() ? std::move(otherwise) : line;
}

void ShowFailure(HWND hOwner, UINT nCaptionID, std::string reason)
{
    if (!reason.empty())
        ShowAtomError(hOwner, nCaptionID, CErrorInfo::Make(std::move(reason)).Get());
}

bool UserAgrees(const std::string& question, UINT nDefault)
{
    const HWND hFocus = ::GetFocus();
    const int nAnswer = AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | nDefault);
    ::SetFocus(hFocus);
    return nAnswer == IDYES;
}

} // namespace hostkit
