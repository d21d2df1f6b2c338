// A directory on disk while it is read.
#pragma once

#include "Editor/disk/DiskFile.h"

#include <dirent.h>
#include <functional>
#include <string>
#include <vector>

namespace editor
{

class Directory
{
public:
    explicit Directory(const std::string& path);
    ~Directory();
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    int GetError() const { return m_error; } // of opening or, later, of reading; 0: none
    FileIdentity GetIdentity() const { return m_identity; }

    // Calls back, until it is answered false, for each sub-directory and each regular file, or link to one, in no
    // particular order; not for names that begin with a dot, nor for anything else, such as pipes. A link that leads
    // nowhere counts as a file. Asks the disk about a single entry only when the directory itself does not tell its
    // kind.
    void ForEach(const std::function<bool(const char* pszName, bool isDirectory)>& entry);
    // The same for one name: is there anything that counts, and is it a directory?
    bool Find(const char* pszName, bool& isDirectory) const;
    // Among the names passed over, those of entries in the making or left over (TempEntry).
    const std::vector<std::string>& GetTempNames() const { return m_tempNames; }

private:
    enum class Kind
    {
        Directory,
        File,
        Other
    };
    Kind KindOf(const dirent& entry) const;
    Kind KindBehind(const char* pszName) const;

    DIR* m_pDir = nullptr;
    int m_error = 0;
    FileIdentity m_identity;
    std::vector<std::string> m_tempNames;
};

} // namespace editor
