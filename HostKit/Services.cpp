#include "HostKit/Services.h"

#include "HostKit/atoms/Archive.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/memory/MemoryStream.h"
#include "Toolkit/menu/MessageBox.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"

#include <new>

namespace hostkit
{

Services::Services(IAtomEditor& editor)
{
    static const SERVICETABLE editorTable{&GiveEditor};
    static const SERVICETABLE errorTable{&ShowError};
    static const SERVICETABLE streamTable{&GiveMemoryStream};
    m_editor.pTable = &editorTable;
    m_editor.pEditor = &editor;
    m_errors.pTable = &errorTable;
    SRVN_InstallProvider(views::kAtomEditorService, &m_editor);
    SRVN_InstallProvider(views::kErrorService, &m_errors);
    m_streams.pTable = &streamTable;
    SRVN_InstallProvider(views::kMemoryStreamService, &m_streams);
    KRNL_RegisterClass(views::kArchiveClass, []() -> CStubBaseInterface* { return new (std::nothrow) CArchive; });
}

Services::~Services()
{
    SRVN_InstallProvider(views::kAtomEditorService, nullptr);
    SRVN_InstallProvider(views::kErrorService, nullptr);
    SRVN_InstallProvider(views::kMemoryStreamService, nullptr);
    KRNL_RegisterClass(views::kArchiveClass, nullptr);
}

BOOL Services::GiveEditor(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD)
{
    if (dwSize != sizeof(IAtomEditor*))
        return FALSE;
    IAtomEditor* const pEditor = static_cast<EditorProvider*>(pProvider)->pEditor;
    pEditor->AddRef();
    *static_cast<IAtomEditor**>(pBuffer) = pEditor;
    return TRUE;
}

BOOL Services::GiveMemoryStream(SERVICEPROVIDER*, void* pBuffer, DWORD dwSize, DWORD)
{
    IMemoryStream* const pStream = dwSize == sizeof(IMemoryStream*) ? new (std::nothrow) CMemoryStream : nullptr;
    if (pStream)
        *static_cast<IMemoryStream**>(pBuffer) = pStream;
    return pStream != nullptr;
}

BOOL Services::ShowError(SERVICEPROVIDER*, void* pBuffer, DWORD dwSize, DWORD)
{
    if (dwSize != sizeof(ERRORREQUEST))
        return FALSE;
    const auto& request = *static_cast<const ERRORREQUEST*>(pBuffer);
    std::string line = CErrorInfo::LineOf(request.pError);
    if (line.empty())
        line = "The reason is not known.";
    // A title is cut off where it is too long for its window.
    if (request.pszCaption && *request.pszCaption)
        line = std::string(request.pszCaption) + ": " + line;
    MessageBox(request.hOwner, line.c_str(), AfxGetAppName(), MB_OK | MB_ICONEXCLAMATION);
    return TRUE;
}

} // namespace hostkit
