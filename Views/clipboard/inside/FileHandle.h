// Inside the library.
#pragma once

#include "Toolkit/base/Files.h"

#include <utility>

namespace views
{

// An open file, closed when this goes.
class FileHandle
{
public:
    explicit FileHandle(HANDLE hFile) : m_hFile(hFile) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    explicit operator bool() const { return m_hFile != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_hFile; }
    void Close()
    {
        if (const HANDLE hFile = std::exchange(m_hFile, INVALID_HANDLE_VALUE); hFile != INVALID_HANDLE_VALUE)
            ::CloseHandle(hFile);
    }

private:
    HANDLE m_hFile;
};

} // namespace views
