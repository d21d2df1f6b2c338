#include "Editor/model/Library.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/Phase.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace editor
{
namespace
{

std::string LastPart(const std::string& path)
{
    return path == "/" ? path : std::string(BaseName(path));
}

// Empty when there is a folder; fills in its absolute path.
std::string FindFolder(const std::string& path, std::string& absolute)
{
    char buffer[PATH_MAX];
    struct stat status;
    if (!realpath(path.c_str(), buffer) || stat(buffer, &status) != 0)
        return SystemErrorText(errno);
    absolute = buffer;
    return S_ISDIR(status.st_mode) ? std::string() : "not a folder";
}

// The names on the way from the root to the path. What lies outside it has one that nothing bears.
std::vector<std::string> PartsBelow(const std::string& root, const std::string& path)
{
    const std::filesystem::path below = std::filesystem::path(path).lexically_relative(root);
    std::vector<std::string> parts;
    if (below != ".")
        for (const auto& part : below)
            parts.push_back(part.string());
    return parts;
}

} // namespace

CStubRef<CLibrary> CLibrary::Open(const std::string& path, const std::vector<std::string>& extensions,
                                  std::shared_ptr<PictureStore> pPictures, LongWork& work, std::string& error,
                                  FolderWatch* pWatch)
{
    LibraryContext context{.work = work};
    error = FindFolder(path, context.rootPath);
    CStubRef<CLibrary> pLibrary;
    if (error.empty()) {
        context.pictureExtensions = extensions;
        std::sort(context.pictureExtensions.begin(), context.pictureExtensions.end());
        context.pPictures = std::move(pPictures);
        context.pWatch = pWatch;
        pLibrary = CStubRef<CLibrary>::Adopt(new CLibrary(std::move(context)));
        pLibrary->ReadAgain();
        error = pLibrary->ErrorReason();
    }
    if (!error.empty()) {
        error = ToShown(path) + ": " + error;
        pLibrary.Release();
    }
    return pLibrary;
}

CLibrary::CLibrary(LibraryContext context)
    : With(nullptr, 0), m_context(std::move(context)), m_name(LastPart(m_context.rootPath))
{}

void CLibrary::SetHistory(History* pHistory)
{
    m_context.pHistory = pHistory;
    m_context.pFollower = pHistory ? std::make_unique<PhaseFollower>(m_context.rootPath) : nullptr;
}

CStubRef<CMember> CLibrary::Find(const std::string& path)
{
    auto pFound = CStubRef<CMember>::Share(this);
    for (const std::string& part : PartsBelow(m_context.rootPath, path)) {
        auto* const pContainer = dynamic_cast<CContainer*>(pFound.Get());
        CStubRef<IAtom> pAtom;
        if (pContainer)
            pContainer->FindAtom(part.c_str(), pAtom.Receive(), IID_IAtom);
        pFound = CStubRef<CMember>::Share(CMember::Of(pAtom.Get()));
    }
    return pFound;
}

CContainer* CLibrary::FindLive(const std::string& path)
{
    CContainer* pFound = this;
    for (const std::string& part : PartsBelow(m_context.rootPath, path))
        pFound = pFound ? dynamic_cast<CContainer*>(pFound->LiveMember(part)) : nullptr;
    return pFound;
}

std::vector<CStubRef<CMember>> CLibrary::LinksTo(const FolderNews& files) const
{
    std::vector<CStubRef<CMember>> links;
    for (CImageLink* const pLink : m_context.links) {
        if (!files.isUnknown && !files.names.contains(std::string(pLink->Name())))
            continue;
        const std::string path = pLink->Path();
        if (path.starts_with(files.folder) && path.rfind('/') == files.folder.size())
            links.push_back(CStubRef<CMember>::Share(pLink));
    }
    for (const auto& [pPhase, path] : m_context.covers)
        if (FolderOf(path) == files.folder && (files.isUnknown || files.names.contains(std::string(BaseName(path)))))
            links.push_back(CStubRef<CMember>::Share(pPhase));
    return links;
}

} // namespace editor
