// Temporary names and the environment.
#include "Toolkit/base/Files.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr char kSeparator = '/';

bool IsFolder(const char* pszPath)
{
    struct stat status;
    return pszPath && *pszPath && stat(pszPath, &status) == 0 && S_ISDIR(status.st_mode);
}

const char* TemporaryFolder(const char* pszWanted)
{
    if (IsFolder(pszWanted))
        return pszWanted;
    const char* pszOfTheMachine = std::getenv("TMPDIR");
    return IsFolder(pszOfTheMachine) ? pszOfTheMachine : "/tmp";
}

// Whoever is handed the path may stand elsewhere. As it is where nobody knows where this program stands.
std::string Absolute(const std::string& folder)
{
    char here[PATH_MAX];
    return folder.front() != kSeparator && getcwd(here, sizeof here) ? std::string(here) + kSeparator + folder : folder;
}

bool IsTaken(const std::string& path)
{
    struct stat status;
    return lstat(path.c_str(), &status) == 0;
}

bool FillRandomly(unsigned char* bytes, std::size_t nBytes)
{
    while (nBytes > 0) {
        const ssize_t n = getrandom(bytes, nBytes, 0);
        if (n < 0 && errno != EINTR)
            return false;
        if (n > 0) {
            bytes += n;
            nBytes -= static_cast<std::size_t>(n);
        }
    }
    return true;
}

// 130 bits of chance, in letters that every file system keeps apart; empty when there is no chance to be had.
std::string RandomName()
{
    unsigned char bytes[26];
    if (!FillRandomly(bytes, sizeof bytes))
        return {};
    std::string name;
    for (const unsigned char byte : bytes)
        name += "abcdefghijklmnopqrstuvwxyz234567"[byte % 32];
    return name;
}
} // namespace

char* _tempnam(const char* pszFolder, const char* pszPrefix)
try {
    std::string start = Absolute(TemporaryFolder(pszFolder));
    if (start.back() != kSeparator)
        start += kSeparator;
    start += pszPrefix ? pszPrefix : "";
    for (;;) {
        const std::string name = RandomName();
        if (name.empty())
            return nullptr;
        if (!IsTaken(start + name))
            return strdup((start + name).c_str());
    }
} catch (const std::bad_alloc&) {
    return nullptr;
}

DWORD GetEnvironmentVariableA(LPCSTR pszName, LPSTR pszBuffer, DWORD nSize)
{
    const char* pszValue = pszName ? std::getenv(pszName) : nullptr;
    if (!pszValue) {
        SetLastError(ERROR_ENVVAR_NOT_FOUND);
        return 0;
    }
    const std::size_t nLength = std::strlen(pszValue);
    if (nLength >= nSize)
        return static_cast<DWORD>(nLength + 1);
    std::memcpy(pszBuffer, pszValue, nLength + 1);
    SetLastError(ERROR_SUCCESS);
    return static_cast<DWORD>(nLength);
}

LPSTR PathAddBackslashA(LPSTR pszPath)
{
    if (!pszPath)
        return nullptr;
    const std::size_t nLength = std::strlen(pszPath);
    if (nLength == 0 || pszPath[nLength - 1] == kSeparator)
        return pszPath + nLength;
    if (nLength + 2 > static_cast<std::size_t>(MAX_PATH))
        return nullptr;
    pszPath[nLength] = kSeparator;
    pszPath[nLength + 1] = '\0';
    return pszPath + nLength + 1;
}
