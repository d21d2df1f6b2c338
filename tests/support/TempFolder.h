// A folder that is gone at the end of the test, the benchmark or the run, and short ways to fill it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

// In memory, where that is possible and nothing else is asked for: some tests need very many files.
class TempFolder
{
public:
    TempFolder() : TempFolder(Memory()) {}
    explicit TempFolder(const std::filesystem::path& where);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return m_path; }
    std::string At(std::string_view name) const { return m_path + '/' + std::string(name); }

    // Folders and small BMP pictures, with what they lie in: "Ada/Poses/ Ada/a.bmp b.bmp". No name holds a blank.
    void Make(const std::string& paths) const;
    void MakeFolder(const std::string& name) const { std::filesystem::create_directories(At(name)); }
    void Write(const std::string& name, std::string_view bytes) const;
    void WriteBmp(const std::string& name, int width = 8, int height = 8, unsigned color = 0xFF3080C0) const;
    std::string Read(const std::string& name) const { return ReadFile(At(name)); }
    static std::string ReadFile(const std::string& path); // "?" when it cannot be read
    // All there is, hidden files too, in the order of the names: "Ada/ Ada/a.bmp b.bmp".
    std::string Everything() const;
    void MakeEmptyFiles(int count, const char* pszPattern) const; // a printf pattern with one number
    void Link(const std::string& name, const std::string& to) const { std::filesystem::create_symlink(to, At(name)); }
    void Remove(const std::string& name) const { std::filesystem::remove_all(At(name)); }

private:
    static std::filesystem::path Memory();

    std::string m_path;
};

// A trash of the test's own, so that nothing gets into the user's.
class TrashHome
{
public:
    TrashHome() { Point(folder.Path()); }
    ~TrashHome() { unsetenv("XDG_DATA_HOME"); }

    TempFolder folder; // what lies in the trash is in Trash/files
    // The trash is below that path from now on.
    void Point(const std::string& path) const { setenv("XDG_DATA_HOME", path.c_str(), 1); }
};
