// The way of an archive into a transfer file, and of the file's path into a handle.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/inside/FileHandle.h"
#include "Views/host/IArchive.h"
#include "Views/host/IFileStream.h"
#include "Views/host/StubRef.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace
{

struct FreeName
{
    void operator()(char* psz) const { std::free(psz); }
};

// With a separator at its end; empty without "TEMP".
CString TransferFolder()
{
    constexpr DWORD kRoom = 16;
    CString strFolder;
    char probe = '\0';
    const DWORD dwSize = ::GetEnvironmentVariableA("TEMP", &probe, 1);
    if (dwSize == 0)
        return strFolder;
    const LPSTR pszFolder = strFolder.GetBuffer(static_cast<int>(dwSize + kRoom));
    ::GetEnvironmentVariableA("TEMP", pszFolder, dwSize + kRoom);
    ::PathAddBackslashA(pszFolder);
    strFolder.ReleaseBuffer();
    return strFolder;
}

// Nobody can guess it, so nobody can have put a file or a link there.
CString NewTransferPath()
{
    const std::unique_ptr<char, FreeName> pszPath(::_tempnam(TransferFolder(), "AE"));
    return CString(pszPath.get());
}

bool WriteWhole(const CString& strPath, const void* pData, DWORD dwLength)
{
    views::FileHandle file(::CreateFile(strPath, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        const DWORD dwError = ::GetLastError();
        ::DeleteFile(strPath); // made, and of no use: nobody else can have a file of that name
        ::SetLastError(dwError);
        return false;
    }
    DWORD dwWritten = 0;
    ::WriteFile(file.Get(), pData, dwLength, &dwWritten, nullptr);
    file.Close();
    if (dwWritten < dwLength)
        ::DeleteFile(strPath);
    return dwWritten >= dwLength;
}

bool IsMadeFile(IArchive* pArchive, const CString& strPath)
{
    const auto pFile = CStubRef<IFileStream>::From(pArchive);
    return pFile && pFile->MakeFile(strPath);
}

HGLOBAL HandleOf(const CString& strPath)
{
    const auto nSize = static_cast<std::size_t>(strPath.GetLength()) + 1;
    const HGLOBAL hPath = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, nSize);
    if (const toolkit::GlobalLocker<char> block(hPath); block.Get()) {
        std::memcpy(block.Get(), strPath.GetString(), nSize);
        return hPath;
    }
    ::GlobalFree(hPath);
    return nullptr;
}

} // namespace

CString FileFromArchive(IArchive* pArchive)
{
    if (!pArchive)
        return {};
    IByteStream* const pBytes = pArchive;
    const DWORD dwLength = pBytes->GetLength();
    const void* const pData = pBytes->GetData();
    if (!pData)
        return {};
    try {
        CString strPath = NewTransferPath();
        if (IsMadeFile(pArchive, strPath) || WriteWhole(strPath, pData, dwLength))
            return strPath;
    } catch (CMemoryException& e) {
        e.ReportError();
    }
    return {};
}

// A file that no handle leads to would stay behind for ever.
void* HGLOBALFromArchive(IArchive* pArchive)
{
    const CString strPath = FileFromArchive(pArchive);
    if (!pArchive || strPath.IsEmpty())
        return nullptr;
    const HGLOBAL hPath = HandleOf(strPath);
    if (!hPath)
        ::DeleteFile(strPath);
    return hPath;
}
