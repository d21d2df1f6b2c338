#include "Editor/services/Services.h"

#include "Editor/model/ErrorInfo.h"
#include "Toolkit/window/MessageBox.h"

namespace editor
{
namespace
{

constexpr const char* kEditorService = "GetAtomEditorSv";
constexpr const char* kErrorService = "ShowErrorSv";

} // namespace

Services::Services(CAtomEditor& editor)
{
    static const SERVICETABLE editorTable{&GiveEditor};
    static const SERVICETABLE errorTable{&ShowError};
    m_editor.pTable = &editorTable;
    m_editor.pEditor = &editor;
    m_errors.pTable = &errorTable;
    SRVN_InstallProvider(kEditorService, &m_editor);
    SRVN_InstallProvider(kErrorService, &m_errors);
}

Services::~Services()
{
    SRVN_InstallProvider(kEditorService, nullptr);
    SRVN_InstallProvider(kErrorService, nullptr);
}

BOOL Services::GiveEditor(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD)
{
    if (dwSize != sizeof(IAtomEditor*))
        return FALSE;
    CAtomEditor* const pEditor = static_cast<EditorProvider*>(pProvider)->pEditor;
    pEditor->AddRef();
    *static_cast<IAtomEditor**>(pBuffer) = pEditor;
    return TRUE;
}

BOOL Services::ShowError(SERVICEPROVIDER*, void* pBuffer, DWORD dwSize, DWORD)
{
    if (dwSize != sizeof(ERRORREQUEST))
        return FALSE;
    const auto& request = *static_cast<const ERRORREQUEST*>(pBuffer);
    std::string line = CErrorInfo::LineOf(request.pError);
    if (line.empty())
        line = "The reason is not known.";
    MessageBox(request.hOwner, line.c_str(), request.pszCaption, MB_OK | MB_ICONEXCLAMATION);
    return TRUE;
}

} // namespace editor
