#include "tests/support/TempFolder.h"

#include "tests/support/BmpFile.h"

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

fs::path TempFolder::Memory()
{
    const fs::path memory = "/dev/shm";
    return access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path();
}

TempFolder::TempFolder(const fs::path& where)
{
    std::string pattern = (where / "views-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder");
    m_path = fs::canonical(pattern).string();
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void TempFolder::Make(const std::string& paths) const
{
    std::istringstream stream(paths);
    for (std::string path; stream >> path;)
        path.back() == '/' ? MakeFolder(path) : WriteBmp(path);
}

void TempFolder::Write(const std::string& name, std::string_view bytes) const
{
    fs::create_directories(fs::path(At(name)).parent_path());
    std::ofstream(At(name), std::ios::binary) << bytes;
}

void TempFolder::WriteBmp(const std::string& name, int width, int height, unsigned color) const
{
    Write(name, EncodeBmp(toolkit::Surface({width, height}, color)));
}

std::string TempFolder::ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "?";
}

std::string TempFolder::Everything() const
{
    std::set<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(m_path))
        paths.insert(entry.path().string().substr(m_path.size() + 1) +
                     (fs::is_directory(entry.symlink_status()) ? "/" : ""));
    std::string text;
    for (const std::string& path : paths)
        text += (text.empty() ? "" : " ") + path;
    return text;
}

void TempFolder::MakeEmptyFiles(int count, const char* pszPattern) const
{
    const int dir = open(m_path.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < count; ++i) {
        char name[64];
        std::snprintf(name, sizeof name, pszPattern, i);
        if (mknodat(dir, name, S_IFREG | 0600, 0) != 0)
            throw std::runtime_error("an empty file could not be made");
    }
    close(dir);
}
