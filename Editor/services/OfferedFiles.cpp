#include "Editor/services/OfferedFiles.h"

#include "Editor/disk/FileText.h"
#include "Editor/disk/TextFile.h"
#include "Editor/model/Member.h"
#include "Editor/services/FileUris.h"
#include "HostKit/atoms/GlobalMedium.h"
#include "Toolkit/base/GlobalMemory.h"

#include <cstring>
#include <filesystem>

namespace editor
{
namespace
{

constexpr std::uint64_t kLargestPicture = 64 << 20; // bytes

void Offer(COleDataSource& source, CLIPFORMAT format, std::string_view bytes)
{
    if (bytes.empty())
        return;
    const HGLOBAL hBytes = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    hostkit::GlobalMedium medium(hBytes);
    if (const toolkit::GlobalLocker<char> block(hBytes); block.Get())
        std::memcpy(block.Get(), bytes.data(), bytes.size());
    else
        return;
    medium.GiveTo(source, format);
}

} // namespace

std::vector<std::string> PathsOf(const ActiveMembers& members)
{
    std::vector<std::string> paths;
    for (const CMember* const pMember : OwnOf<CMember>(members))
        if (const std::string path = pMember->Path(); !path.empty())
            paths.push_back(std::filesystem::absolute(path).lexically_normal().string());
    return paths;
}

void OfferFiles(COleDataSource& source, const std::vector<std::string>& paths)
{
    Offer(source, UriListFormat(), UriListOf(paths));
}

void OfferCopiedFiles(COleDataSource& source, const std::vector<std::string>& paths)
{
    if (paths.empty())
        return; // lines of a phase are no files
    OfferFiles(source, paths);
    Offer(source, CopiedFilesFormat(), CopiedFilesOf(paths));
    const CLIPFORMAT format = paths.size() == 1 ? PictureFormatOf(paths.front()) : 0;
    if (TextState picture; format != 0 && ReadText(paths.front(), kLargestPicture, picture) == 0)
        Offer(source, format, picture.text);
}

} // namespace editor
