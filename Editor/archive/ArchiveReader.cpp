#include "Editor/archive/ArchiveReader.h"

#include "Editor/disk/FileNames.h"
#include "Toolkit/base/Checksum.h"

namespace editor
{
namespace
{

bool IsKind(std::uint8_t kind)
{
    return kind >= static_cast<std::uint8_t>(RecordKind::File) &&
           kind <= static_cast<std::uint8_t>(RecordKind::DeadLink);
}

// A path below some folder, without detours.
bool IsOrigin(std::string_view path)
{
    if (path.empty())
        return true;
    if (path.size() > kLongestPath || path.find('\0') != path.npos)
        return false;
    for (std::size_t at = 0; at <= path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        const std::string_view part = path.substr(at, end - at);
        if (part.empty() || part == "." || part == "..")
            return false;
        at = end + 1;
    }
    return true;
}

bool IsSound(const ArchiveRecord& record)
{
    if (!FileNameTrouble(record.name).empty() || !IsOrigin(record.origin))
        return false;
    const std::string_view content = record.content;
    if (record.kind == RecordKind::DeadLink)
        return !content.empty() && content.size() <= kLongestPath && content.find('\0') == content.npos;
    return record.kind != RecordKind::Link || record.content.empty();
}

// The number of records, -1 when something in there is none.
std::int64_t CountRecords(std::string_view records, int depth)
{
    RecordReader reader(records);
    ArchiveRecord record;
    std::int64_t count = 0;
    for (; reader.Next(record); ++count) {
        const bool isInside = depth > 0;
        if (isInside && record.kind == RecordKind::Link)
            return -1;
        if (record.kind == RecordKind::Folder &&
            (depth + 1 >= kDeepestFolder || CountRecords(record.content, depth + 1) < 0))
            return -1;
    }
    return reader.IsAtEnd() ? count : -1;
}

std::uint64_t SumOfRecords(std::string_view records, std::uint64_t sum, int depth)
{
    RecordReader reader(records);
    for (ArchiveRecord record; reader.Next(record);) {
        const bool hasRecords = record.kind == RecordKind::Folder && depth + 1 < kDeepestFolder;
        sum = hasRecords ? SumOfRecords(record.content, sum, depth + 1) : toolkit::Checksum(record.content, sum);
        sum = toolkit::Checksum(record.head, sum);
    }
    return reader.IsAtEnd() ? sum : toolkit::Checksum(reader.Rest(), sum);
}

std::string TroubleOfHeader(std::string_view bytes)
{
    if (bytes.size() < kHeaderSize || !bytes.starts_with(kArchiveMark))
        return "not an archive of objects";
    const auto version = NumberAt<std::uint32_t>(bytes.data() + 8);
    if (version != kArchiveVersion)
        return "an archive of another version (" + std::to_string(version) + ")";
    if (NumberAt<std::uint64_t>(bytes.data() + 16) != bytes.size() - kHeaderSize)
        return "the archive is not complete";
    if (NumberAt<std::uint64_t>(bytes.data() + kSummedHeader) != ChecksumOfArchive(bytes))
        return "the archive is damaged";
    return {};
}

} // namespace

bool RecordReader::Next(ArchiveRecord& record)
{
    if (m_rest.size() < kRecordSize)
        return false;
    const char* const p = m_rest.data();
    const auto kind = NumberAt<std::uint8_t>(p);
    const std::size_t name = NumberAt<std::uint16_t>(p + 2);
    const std::size_t origin = NumberAt<std::uint16_t>(p + 4);
    const auto permissions = NumberAt<std::uint16_t>(p + 6);
    const std::size_t content = NumberAt<std::uint32_t>(p + 32);
    const std::size_t room = m_rest.size() - kRecordSize;
    if (!IsKind(kind) || p[1] != 0 || permissions > 0777 || name + origin > room || content > room - name - origin)
        return false;
    record.kind = static_cast<RecordKind>(kind);
    record.permissions = permissions;
    record.changed = NumberAt<std::int64_t>(p + 8);
    record.identity = {NumberAt<std::uint64_t>(p + 16), NumberAt<std::uint64_t>(p + 24)};
    record.head = m_rest.substr(0, kRecordSize + name + origin);
    record.name = m_rest.substr(kRecordSize, name);
    record.origin = m_rest.substr(kRecordSize + name, origin);
    record.content = m_rest.substr(kRecordSize + name + origin, content);
    if (!IsSound(record))
        return false;
    m_rest.remove_prefix(record.head.size() + content);
    return true;
}

std::string_view OpenArchive(std::string_view bytes, std::string& trouble)
{
    trouble = TroubleOfHeader(bytes);
    if (!trouble.empty())
        return {};
    const std::string_view records = bytes.substr(kHeaderSize);
    if (CountRecords(records, 0) != static_cast<std::int64_t>(NumberAt<std::uint32_t>(bytes.data() + 12)))
        trouble = "the archive holds what no archive holds";
    return trouble.empty() ? records : std::string_view();
}

std::uint64_t ChecksumOfArchive(std::string_view bytes)
{
    return ChecksumOfHeader(bytes.data(), SumOfRecords(bytes.substr(kHeaderSize), 0, 0));
}

std::uint64_t ChecksumOfHeader(const char* pHeader, std::uint64_t records)
{
    return toolkit::Checksum({pHeader, kSummedHeader}, records);
}

} // namespace editor
