#pragma once

#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/Unknown.h"
#include "Views/host/Api.h"

// The releaser of clipboard data: it owns a path handle and its transfer file, and disposes of both when its last
// reference goes. The editor, if there is one, is handed the file's atoms once more before, each with its reference,
// which is released.
//
// Until then the file is held: it bears a lock of the system for reading (F_OFD_SETLK), which ends with the process,
// however that ends. A transfer file without one has no owner any more. It is no obstacle to those who open the file,
// unshared or not. Where the system has no such locks, files are not held.
class VIEWS_API CTransferFileOwner final : public IUnknown
{
public:
    explicit CTransferFileOwner(HGLOBAL hPath); // takes both over, with one reference
    HGLOBAL Detach();                           // gives both back: there is nothing to dispose of

    HRESULT QueryInterface(REFIID riid, void** ppvObject) override; // IID_IUnknown alone
    ULONG AddRef() override;
    ULONG Release() override;

private:
    ~CTransferFileOwner() = default;
    void Dispose() const;

    std::int32_t m_nReferences = 1;
    HGLOBAL m_hPath;
};
static_assert(sizeof(void*) != 4 || sizeof(CTransferFileOwner) == 12);
