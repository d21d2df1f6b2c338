#include "Editor/services/NameRefusals.h"

#include "HostKit/base/ErrorInfo.h"
#include "Toolkit/base/String.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"

#include <utility>

namespace editor
{
namespace
{

std::string s_last;

} // namespace

NameRefusals::NameRefusals()
{
    static const SERVICETABLE table{&ShowError};
    m_errors.pTable = &table;
    m_errors.pFormer = SRVN_InstallProvider(views::kErrorService, &m_errors);
}

NameRefusals::~NameRefusals()
{
    SRVN_InstallProvider(views::kErrorService, m_errors.pFormer);
}

std::string NameRefusals::Take()
{
    return std::exchange(s_last, {});
}

BOOL NameRefusals::ShowError(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra)
{
    const auto* const pRequest = static_cast<const ERRORREQUEST*>(pBuffer);
    CString refused;
    if (dwSize == sizeof(ERRORREQUEST) && refused.LoadString(views::IDS_RENAME_FAILED) &&
        refused == pRequest->pszCaption) {
        s_last = hostkit::CErrorInfo::LineOf(pRequest->pError);
        return TRUE;
    }
    SERVICEPROVIDER* const pFormer = static_cast<Provider*>(pProvider)->pFormer;
    return pFormer && pFormer->pTable->pfnServiceProc(pFormer, pBuffer, dwSize, dwExtra);
}

} // namespace editor
