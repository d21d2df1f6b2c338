// Archives over memory streams, new or with a file's content. The way out to a file is in TransferFile.cpp.
#include "Views/clipboard/Archives.h"

#include "Kernel/Kernel.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/StgMedium.h"
#include "Views/clipboard/inside/FileArchive.h"
#include "Views/clipboard/inside/FileHandle.h"
#include "Views/host/IArchive.h"
#include "Views/host/IFileStream.h"
#include "Views/host/IMemoryStream.h"
#include "Views/host/StubRef.h"
#include "Views/host/inside/ServiceCalls.h"

#include <algorithm>
#include <optional>

namespace
{

CStubRef<IByteStream> MakeStream()
{
    IMemoryStream* pStream = nullptr;
    CallService(g_pMemoryStreamService, &pStream, sizeof pStream, 0);
    return CStubRef<IByteStream>::Adopt(pStream);
}

CStubRef<IArchive> MakeArchive()
{
    const auto pKernel = CStubRef<IKernel>::Adopt(KRNL_GetKernel());
    CStubRef<IArchive> pArchive;
    if (!pKernel->CreateObject(views::kArchiveClass, pArchive.Receive(), IID_IArchive))
        return nullptr;
    return pArchive;
}

// Before the stream is attached. Both empty where the host does not make both.
views::FileArchive MakeParts()
{
    auto pStream = MakeStream(); // comes first
    auto pArchive = MakeArchive();
    if (!pStream || !pArchive)
        return {};
    return {std::move(pStream), std::move(pArchive)};
}

// A block of that many bytes inside the stream, whose position is its start; NULL when the stream cannot grow so far.
void* SizeStream(IByteStream* pStream, DWORD dwSize)
{
    pStream->Seek(dwSize, 0);
    pStream->SetEnd();
    pStream->Seek(0, 0);
    return pStream->GetData();
}

// An archive that ended early would be another archive: a file that yields less than its size gives none.
bool ReadWhole(HANDLE hFile, const char* pszPath, IByteStream* pStream)
{
    DWORD dwHigh = 0, dwRead = 0;
    const DWORD dwSize = ::GetFileSize(hFile, &dwHigh);
    if (dwSize == 0 || dwHigh != 0)
        return false;
    const auto pFile = CStubRef<IFileStream>::From(pStream);
    if (pFile && pFile->TakeFile(pszPath))
        return pStream->GetLength() == dwSize;
    void* const pData = SizeStream(pStream, dwSize);
    return pData && ::ReadFile(hFile, pData, dwSize, &dwRead, nullptr) && dwRead == dwSize;
}

} // namespace

std::optional<CString> views::PathIn(void* hGlobal)
{
    const toolkit::GlobalLocker<const char> block(hGlobal);
    if (!block.Get())
        return std::nullopt;
    const char* const pEnd = block.Get() + ::GlobalSize(hGlobal);
    return CString(std::string_view(block.Get(), std::find(block.Get(), pEnd, '\0')));
}

views::FileArchive views::ReadTransferFile(const char* pszPath)
{
    FileArchive parts = MakeParts();
    if (!parts.pArchive)
        return {};
    const FileHandle file(::CreateFile(pszPath, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file || !ReadWhole(file.Get(), pszPath, parts.pStream.Get()))
        return {};
    parts.pArchive->SetStream(parts.pStream.Get());
    return parts;
}

CStubRef<IArchive> views::ArchiveOver(const CStubRef<IByteStream>& pStream)
{
    pStream->Seek(0, 0);
    auto pArchive = MakeArchive();
    if (pArchive)
        pArchive->SetStream(pStream.Get());
    return pArchive;
}

IArchive* ConstructMemoryArchive()
{
    views::FileArchive parts = MakeParts();
    if (parts.pArchive)
        parts.pArchive->SetStream(parts.pStream.Get());
    return parts.pArchive.Detach();
}

IArchive* ArchiveFromFile(const char* lpszPath)
{
    return views::ReadTransferFile(lpszPath).pArchive.Detach();
}

// Without memory for the path there is no archive either.
IArchive* ArchiveFromHGLOBAL(void* hGlobal)
try {
    const std::optional<CString> path = views::PathIn(hGlobal);
    return path ? ArchiveFromFile(*path) : nullptr;
} catch (const CMemoryException&) {
    return nullptr;
}

IArchive* ArchiveFromStgMedium(const STGMEDIUM& medium)
try {
    switch (medium.tymed) {
    case TYMED_HGLOBAL:
        return ArchiveFromHGLOBAL(medium.hGlobal);
    case TYMED_FILE:
        return medium.lpszFileName ? ArchiveFromFile(toolkit::Narrow(medium.lpszFileName).c_str()) : nullptr;
    default:
        return nullptr;
    }
} catch (const CMemoryException&) {
    return nullptr;
}
