#include "Editor/model/Phase.h"

#include "Editor/model/FileText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/pictures/IconPainter.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace editor
{
namespace
{

constexpr off_t kLargest = 4 << 20; // bytes; far more than any phase needs

class File
{
public:
    explicit File(const std::string& path) : m_fd(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~File()
    {
        if (m_fd >= 0)
            close(m_fd);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    // Empty when all of it has been read.
    std::string ReadAll(std::string& text)
    {
        struct stat status;
        if (m_fd < 0 || fstat(m_fd, &status) != 0)
            return SystemErrorText(errno);
        if (!S_ISREG(status.st_mode))
            return "not a file";
        if (status.st_size > kLargest)
            return "too large for a phase";
        text.resize(static_cast<std::size_t>(status.st_size));
        const ssize_t got = read(m_fd, text.data(), text.size());
        if (got < 0)
            return SystemErrorText(errno);
        text.resize(static_cast<std::size_t>(got));
        return {};
    }

private:
    const int m_fd;
};

std::string_view Trimmed(std::string_view line)
{
    constexpr const char* kBlank = " \t\r";
    const std::size_t first = line.find_first_not_of(kBlank);
    return first == line.npos ? std::string_view() : line.substr(first, line.find_last_not_of(kBlank) - first + 1);
}

} // namespace

int CPhase::GetPosition(IImageLink* pLink)
{
    const auto* const pOwn = dynamic_cast<CImageLink*>(pLink);
    return pOwn && pOwn->Container() == this ? pOwn->Position() : -1;
}

void* CPhase::FindInterface(DWORD id)
{
    return id == IID_IPhase ? static_cast<IPhase*>(this) : CContainer::FindInterface(id);
}

CContainer::Listing CPhase::Read()
{
    Listing listing;
    std::string text;
    listing.error = File(Path()).ReadAll(text);
    if (text.find('\0') != text.npos)
        listing.error = "not a text";
    if (!listing.error.empty())
        return listing;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view line = Trimmed(std::string_view(text).substr(at, end - at));
        if (!line.empty() && line[0] != '#')
            listing.table.Add(line, MemberKind::Link);
        at = end + 1;
    }
    return listing;
}

UINT CPhase::FindName(const MemberTable& table, std::string_view name) const
{
    for (UINT i = 0; i < table.GetCount(); ++i)
        if (BaseName(table.NameOf(i)) == name)
            return i;
    return MemberTable::kNone;
}

CMember* CPhase::MakeMember(UINT nIndex, MemberKind)
{
    return new CImageLink(this, nIndex);
}

toolkit::Surface CPhase::DrawIcon(CSize size)
{
    return PaintPictogram(Pictogram::Phase, size);
}

} // namespace editor
