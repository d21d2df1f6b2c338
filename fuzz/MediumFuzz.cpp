// The path handle and its medium, as a drag or the clipboard brings them. The first byte says which kind of medium, and
// whether the rest is a path by itself or one in a folder that has a little of everything.
#include "Editor/services/AtomEditor.h"
#include "HostKit/Services.h"
#include "HostKit/atoms/Archive.h"
#include "HostKit/base/Counted.h"
#include "HostKit/memory/MemoryStream.h"
#include "Toolkit/base/Files.h"
#include "Toolkit/exchange/StgMedium.h"
#include "Views/clipboard/clipboard.h"
#include "fuzz/Check.h"
#include "tests/support/TempFolder.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <sys/stat.h>

namespace
{

using Bytes = std::optional<std::string>;

const TempFolder& Disk()
{
    static const TempFolder folder;
    static const bool isFilled = [] {
        folder.Write("a", "some bytes");
        folder.Write("deep/in/it", std::string(100'000, 'x'));
        folder.Write("\xFF\xE2\x82", "a name that is no text");
        folder.Write("empty", "");
        folder.Write("huge", "");
        std::error_code tooLarge; // for some machines
        std::filesystem::resize_file(folder.At("huge"), 5ull << 30, tooLarge);
        std::filesystem::create_symlink("a", folder.At("link"));
        return mkfifo(folder.At("pipe").c_str(), 0600) == 0;
    }();
    return isFilled ? folder : (std::abort(), folder);
}

// What a plain look at the disk finds: an ordinary file that holds something and can be read as a whole.
Bytes Expected(const std::string& path)
{
    struct stat status;
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size == 0 ||
        static_cast<std::uint64_t>(status.st_size) >> 32 != 0)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    if (bytes.size() != static_cast<std::size_t>(status.st_size))
        return std::nullopt;
    return bytes;
}

Bytes Taken(IArchive* pTaken)
{
    const auto pArchive = CStubRef<IArchive>::Adopt(pTaken);
    if (!pArchive)
        return std::nullopt;
    return std::string(static_cast<const char*>(pArchive->GetData()), pArchive->GetLength());
}

Bytes TakenFromHandle(const std::string& block, std::string& broken)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = GlobalAlloc(GMEM_MOVEABLE, block.size());
    if (void* const p = GlobalLock(medium.hGlobal)) {
        std::memcpy(p, block.data(), block.size());
        GlobalUnlock(medium.hGlobal);
    }
    const Bytes taken = Taken(ArchiveFromStgMedium(medium));
    if (taken != Taken(ArchiveFromHGLOBAL(medium.hGlobal)))
        broken = "the handle gives another archive than its medium";
    if (toolkit::GlobalLocker<const char> held(medium.hGlobal);
        GlobalSize(medium.hGlobal) != block.size() ||
        std::memcmp(held.Get() ? held.Get() : "", block.data(), block.size()))
        broken = "the medium was changed";
    const HGLOBAL hFormer = medium.hGlobal;
    ReleaseStgMedium(&medium);
    if (Taken(ArchiveFromHGLOBAL(hFormer)))
        broken = "an archive of a handle that is gone";
    return taken;
}

Bytes TakenFromName(const std::wstring& name)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_FILE;
    medium.lpszFileName = const_cast<LPOLESTR>(name.c_str());
    return Taken(ArchiveFromStgMedium(medium));
}

// A medium of a kind that is not understood is not looked into.
Bytes TakenFromOther(DWORD tymed)
{
    STGMEDIUM medium{};
    medium.tymed = tymed;
    medium.pstm = reinterpret_cast<void*>(1);
    return Taken(ArchiveFromStgMedium(medium));
}

std::string CheckMedium(unsigned char kind, std::string_view rest)
{
    const std::string text = kind & 1 ? std::string(rest) : Disk().At(rest);
    const std::string path = text.substr(0, text.find('\0'));
    std::string broken;
    switch (kind >> 1 & 3) {
    case 0:
        return TakenFromHandle(text, broken) == Expected(path) ? broken : "a handle gave another file's bytes";
    case 1:
        return TakenFromHandle(path + '\0', broken) == Expected(path) ? broken : "a handle gave another file's bytes";
    case 2:
        return TakenFromName(toolkit::Widen(path)) == Expected(path) ? broken : "a name gave another file's bytes";
    default: {
        const DWORD tymed = kind >> 3;
        const bool isKnown = tymed == TYMED_HGLOBAL || tymed == TYMED_FILE;
        return isKnown || !TakenFromOther(tymed) ? broken : "an archive of a medium that is not understood";
    }
    }
}

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    static editor::CAtomEditor s_editor;
    static const hostkit::Services s_services(s_editor);
    if (bytes.empty())
        return {};
    const int nObjects = hostkit::Counted::CountAlive(), nBlocks = toolkit::CountGlobalBlocks();
    const int nFiles = toolkit::CountOpenFiles(), nReferences = KRNL_CountReferences();
    std::string broken = CheckMedium(static_cast<unsigned char>(bytes[0]), bytes.substr(1));
    if (broken.empty() && (nObjects != hostkit::Counted::CountAlive() || nBlocks != toolkit::CountGlobalBlocks() ||
                           nFiles != toolkit::CountOpenFiles() || nReferences != KRNL_CountReferences()))
        broken = "something is left behind";
    return broken;
}
