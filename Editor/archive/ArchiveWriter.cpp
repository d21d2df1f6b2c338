#include "Editor/archive/ArchiveWriter.h"

#include "Editor/archive/ArchiveReader.h"
#include "Editor/disk/DiskFile.h"
#include "Editor/disk/FileNames.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/TempEntry.h"
#include "Toolkit/base/Checksum.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace editor
{
namespace
{

constexpr std::size_t kLargest = std::numeric_limits<DWORD>::max();
constexpr int kMostRepeated = 1000; // folders that links lead to once more

std::int64_t Nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

// What went wrong; empty when all was read.
std::string ReadAll(int fd, char* pBytes, std::size_t size, Meter* pMeter)
{
    while (size > 0) {
        if (pMeter && pMeter->IsCancelled())
            return SystemErrorText(ECANCELED);
        const ssize_t got = read(fd, pBytes, std::min(size, Meter::kPiece));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return SystemErrorText(errno);
        if (got == 0)
            return "became shorter while it was read";
        pBytes += got;
        size -= static_cast<std::size_t>(got);
        if (pMeter)
            pMeter->Did(static_cast<std::uint64_t>(got));
    }
    return {};
}

} // namespace

// A file or folder, opened for reading.
class ArchiveWriter::Entry
{
public:
    // What lies at `path` below the folder (AT_FDCWD: anywhere), and how a message names it.
    Entry(int nFolder, const std::string& path, std::string shown) : m_shown(std::move(shown)), m_name(BaseName(path))
    {
        const bool bThere = fstatat(nFolder, path.c_str(), &m_status, 0) == 0;
        const bool bWanted = bThere && (S_ISREG(m_status.st_mode) || S_ISDIR(m_status.st_mode));
        if (bWanted) // opening anything else may have consequences
            m_fd = FileDescriptor(openat(nFolder, path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        if (bThere && !bWanted)
            m_trouble = "neither a file nor a folder";
        else if (!bThere && (errno == ENOENT || errno == ELOOP))
            ReadLink(nFolder, path, errno);
        else if (!m_fd || fstat(m_fd.Get(), &m_status) != 0)
            m_trouble = SystemErrorText(errno);
    }

    std::string Trouble() const { return m_trouble.empty() ? FileNameTrouble(m_name) : m_trouble; }
    const std::string& DeadLink() const { return m_deadLink; } // what it says; empty when it is none
    const std::string& Shown() const { return m_shown; }
    const std::string& Name() const { return m_name; }
    bool IsFolder() const { return S_ISDIR(m_status.st_mode); }
    FileIdentity Identity() const { return {m_status.st_dev, m_status.st_ino}; }
    std::uint16_t Permissions() const { return (m_status.st_mode & 0777) | S_IRUSR; } // it could be read
    std::int64_t Changed() const { return Nanoseconds(m_status.st_mtim); }
    std::uint64_t Size() const { return static_cast<std::uint64_t>(m_status.st_size); }
    int Handle() const { return m_fd.Get(); }

private:
    void ReadLink(int nFolder, const std::string& path, int error)
    {
        char to[kLongestPath];
        const ssize_t size = readlinkat(nFolder, path.c_str(), to, sizeof to);
        if (size > 0 && fstatat(nFolder, path.c_str(), &m_status, AT_SYMLINK_NOFOLLOW) == 0)
            m_deadLink.assign(to, static_cast<std::size_t>(size));
        else
            m_trouble = SystemErrorText(error);
    }

    const std::string m_shown;
    const std::string m_name;
    struct stat m_status = {};
    FileDescriptor m_fd;
    std::string m_deadLink;
    std::string m_trouble;
};

ArchiveWriter::ArchiveWriter(IByteStream& stream) : m_stream(stream)
{
    m_stream.Seek(0, 0);
    m_stream.SetEnd();
}

std::string ArchiveWriter::AddPath(const std::string& path, std::string_view origin)
{
    ++m_nObjects;
    const Entry entry(AT_FDCWD, path, std::string(BaseName(path)));
    if (std::string trouble = TroubleOf(entry); !trouble.empty())
        return Fail(std::move(trouble));
    return AddEntry(entry, origin);
}

std::string ArchiveWriter::AddLink(std::string_view name, const std::string& path, std::string_view origin)
{
    ++m_nObjects;
    const Entry picture(AT_FDCWD, path, std::string(name));
    if (const std::string trouble = picture.Trouble(); !trouble.empty())
        return Fail(Because(name, trouble));
    if (!picture.DeadLink().empty())
        return Fail(Because(name, SystemErrorText(ENOENT)));
    const std::size_t at = NextRecord();
    std::string error = AddHead(RecordKind::Link, name, picture, origin);
    if (error.empty())
        CloseRecord(at);
    return error;
}

std::string ArchiveWriter::Finish()
{
    m_bLacksConsent = !m_leftOut.empty() && !m_bMayLeaveOut;
    if (m_bLacksConsent)
        return Fail(m_leftOut.size() == 1
                        ? m_leftOut.front()
                        : m_leftOut.front() + " (and " + std::to_string(m_leftOut.size() - 1) + " more)");
    if (m_nLength == 0)
        if (std::string error = Grow(kHeaderSize); !error.empty())
            return error;
    char* const pHeader = Data();
    std::copy(kArchiveMark.begin(), kArchiveMark.end(), pHeader);
    PutNumber<std::uint32_t>(pHeader + 8, kArchiveVersion);
    PutNumber<std::uint32_t>(pHeader + 12, m_nObjects);
    PutNumber<std::uint64_t>(pHeader + 16, m_nLength - kHeaderSize);
    PutNumber<std::uint64_t>(pHeader + kSummedHeader, ChecksumOfHeader(pHeader, m_sum));
    return {};
}

std::string ArchiveWriter::AddEntry(const Entry& entry, std::string_view origin)
{
    if (!entry.DeadLink().empty())
        return AddDeadLink(entry, origin);
    return entry.IsFolder() ? AddFolder(entry, origin) : AddFile(entry, origin);
}

std::string ArchiveWriter::TroubleOf(const Entry& entry)
{
    if (const std::string trouble = entry.Trouble(); !trouble.empty())
        return Because(entry.Shown(), trouble);
    if (!entry.IsFolder())
        return entry.Size() <= kLargest ? std::string() : Because(entry.Shown(), "too large to be carried");
    if (std::find(m_within.begin(), m_within.end(), entry.Identity()) != m_within.end())
        return Because(entry.Shown(), "a link to a folder that holds it");
    if (!m_folders.insert(entry.Identity()).second && ++m_nRepeated > kMostRepeated)
        return Because(entry.Shown(), "one of too many links to folders that are carried already");
    if (m_within.size() + 1 >= kDeepestFolder)
        return Because(entry.Shown(), "too many folders inside each other");
    return {};
}

std::string ArchiveWriter::AddDeadLink(const Entry& entry, std::string_view origin)
{
    const std::size_t at = NextRecord();
    std::string error = AddHead(RecordKind::DeadLink, entry.Name(), entry, origin);
    const std::size_t content = m_nLength;
    if (error.empty())
        error = Grow(entry.DeadLink().size());
    if (!error.empty())
        return error;
    std::copy(entry.DeadLink().begin(), entry.DeadLink().end(), Data() + content);
    CloseRecord(at);
    return {};
}

// A file that is being written to meanwhile is carried as far as it went when it was opened.
std::string ArchiveWriter::AddFile(const Entry& entry, std::string_view origin)
{
    const std::size_t at = NextRecord();
    std::string error = AddHead(RecordKind::File, entry.Name(), entry, origin);
    const std::size_t content = m_nLength;
    if (error.empty())
        error = Grow(entry.Size());
    if (!error.empty())
        return error;
    if (error = ReadAll(entry.Handle(), Data() + content, entry.Size(), m_pMeter); !error.empty())
        return Fail(Because(entry.Shown(), error));
    if (error = ReplaceContent(content, entry); !error.empty())
        return error;
    CloseRecord(at);
    return {};
}

std::string ArchiveWriter::ReplaceContent(std::size_t at, const Entry& entry)
{
    if (!m_replacement)
        return {};
    const auto other = m_replacement(entry.Name(), entry.Identity(), {Data() + at, m_nLength - at});
    if (!other)
        return {};
    m_nLength = at;
    std::string error = Grow(other->size());
    if (error.empty())
        std::copy(other->begin(), other->end(), Data() + at);
    return error;
}

std::string ArchiveWriter::AddFolder(const Entry& entry, std::string_view origin)
{
    const std::size_t at = NextRecord();
    std::string error = AddHead(RecordKind::Folder, entry.Name(), entry, origin);
    m_within.push_back(entry.Identity());
    if (error.empty())
        error = AddMembers(entry);
    m_within.pop_back();
    if (error.empty())
        CloseRecord(at);
    return error;
}

std::string ArchiveWriter::AddMembers(const Entry& folder)
{
    std::vector<std::string> names;
    if (const int error = ReadNames(folder.Handle(), names); error != 0)
        return Fail(Because(folder.Shown(), SystemErrorText(error)));
    std::erase_if(names, TempEntry::IsOne);
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        const Entry entry(folder.Handle(), name, folder.Shown() + '/' + name);
        if (std::string trouble = TroubleOf(entry); !trouble.empty())
            m_leftOut.push_back(std::move(trouble));
        else if (std::string error = AddEntry(entry, {}); !error.empty())
            return error;
    }
    return {};
}

std::string ArchiveWriter::AddHead(RecordKind kind, std::string_view name, const Entry& entry, std::string_view origin)
{
    const std::size_t at = NextRecord();
    if (std::string error = Grow(at - m_nLength + kRecordSize + name.size() + origin.size()); !error.empty())
        return error;
    char* const p = Data() + at;
    std::memset(p, 0, kRecordSize);
    PutNumber<std::uint8_t>(p, static_cast<std::uint8_t>(kind));
    PutNumber<std::uint16_t>(p + 2, static_cast<std::uint16_t>(name.size()));
    PutNumber<std::uint16_t>(p + 4, static_cast<std::uint16_t>(origin.size()));
    PutNumber<std::uint16_t>(p + 6, kind == RecordKind::Link ? 0 : entry.Permissions());
    PutNumber<std::int64_t>(p + 8, entry.Changed());
    PutNumber<std::uint64_t>(p + 16, entry.Identity().device);
    PutNumber<std::uint64_t>(p + 24, entry.Identity().inode);
    std::copy(origin.begin(), origin.end(), std::copy(name.begin(), name.end(), p + kRecordSize));
    return {};
}

void ArchiveWriter::CloseRecord(std::size_t at)
{
    char* const p = Data() + at;
    const std::size_t head = kRecordSize + NumberAt<std::uint16_t>(p + 2) + std::size_t{NumberAt<std::uint16_t>(p + 4)};
    const std::size_t content = m_nLength - at - head;
    PutNumber(p + 32, static_cast<std::uint32_t>(content));
    if (NumberAt<RecordKind>(p) != RecordKind::Folder) // what is in a folder has been summed
        m_sum = toolkit::Checksum({p + head, content}, m_sum);
    m_sum = toolkit::Checksum({p, head}, m_sum);
}

std::string ArchiveWriter::Grow(std::size_t bytes)
{
    if (bytes > kLargest - m_nLength)
        return Fail("More than 4 GB cannot be carried at once.");
    m_nLength += bytes;
    m_stream.Seek(static_cast<DWORD>(m_nLength), 0);
    m_stream.SetEnd();
    return Data() && m_stream.GetLength() == m_nLength ? std::string()
                                                       : Fail("There is not enough memory for that much at once.");
}

std::string ArchiveWriter::Fail(std::string line)
{
    m_nLength = 0;
    m_stream.Seek(0, 0);
    m_stream.SetEnd();
    return line;
}

} // namespace editor
