#include "Editor/script/ScriptFile.h"

#include "Editor/disk/FileText.h"

#include <cerrno>
#include <cstdio>
#include <memory>

namespace editor
{

std::string ReadScript(const std::string& path, std::string& text)
{
    struct Close
    {
        void operator()(std::FILE* pFile) const { std::fclose(pFile); }
    };
    const std::unique_ptr<std::FILE, Close> pNamed(path == "-" ? nullptr : std::fopen(path.c_str(), "rbe"));
    if (path != "-" && !pNamed)
        return path + ": " + SystemErrorText(errno);
    std::FILE* const pFile = pNamed ? pNamed.get() : stdin;
    char part[4096];
    for (std::size_t got; (got = std::fread(part, 1, sizeof part, pFile)) > 0;)
        text.append(part, got);
    return std::ferror(pFile) ? path + ": " + SystemErrorText(errno) : std::string();
}

} // namespace editor
