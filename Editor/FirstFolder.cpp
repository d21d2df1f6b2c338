#include "Editor/FirstFolder.h"

#include "Editor/disk/TempEntry.h"
#include "Editor/disk/UserPlaces.h"

#include <filesystem>

namespace editor
{
namespace
{

// Beside the installed program, else in the sources.
std::string Samples()
{
    namespace fs = std::filesystem;
    std::error_code failure;
    const fs::path program = fs::read_symlink("/proc/self/exe", failure);
    const std::string installed = (program.parent_path().parent_path() / "share/views/samples").string();
    return IsFolder(installed) ? installed : EDITOR_SAMPLES;
}

// Whole or not at all. A folder by that name is the user's, whatever is in it.
bool CopySamples(const std::string& home)
{
    namespace fs = std::filesystem;
    std::error_code failure;
    fs::create_directories(home, failure);
    TempEntry copy(home);
    fs::copy(Samples(), fs::path(home) / copy.Name(), fs::copy_options::recursive, failure);
    return !failure && copy.PutAt("samples") == 0;
}

} // namespace

std::string FirstFolder(const Settings& settings)
{
    for (const std::string& folder : settings.recent)
        if (IsFolder(folder))
            return folder;
    const std::string data = DataHome();
    if (data.empty())
        return ".";
    const std::string samples = data + "/views/samples";
    return IsFolder(samples) || CopySamples(data + "/views") ? samples : ".";
}

std::string SampleFolder()
{
    const std::string samples = Samples();
    return IsFolder(samples) ? samples : ".";
}

} // namespace editor
