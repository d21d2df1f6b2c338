// A folder on the disk for the time of the run.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace fuzz
{

class Folder
{
public:
    Folder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "views-fuzz-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            std::abort();
        m_path = pattern;
    }
    ~Folder() { std::filesystem::remove_all(m_path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string At(std::string_view name) const { return m_path + '/' + std::string(name); }
    void Write(std::string_view name, std::string_view bytes) const
    {
        std::filesystem::create_directories(std::filesystem::path(At(name)).parent_path());
        std::ofstream(At(name), std::ios::binary) << bytes;
    }

private:
    std::string m_path;
};

} // namespace fuzz
