#include "fuzz/ArchiveCheck.h"

#include "Editor/archive/ArchiveReader.h"
#include "Editor/model/PhaseText.h"

namespace fuzz
{
namespace
{

using namespace editor;

bool IsWithin(std::string_view part, std::string_view whole)
{
    return part.empty() || (part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size());
}

// Put together anew rather than taken from the reader: a name that stays in its folder.
bool IsHarmless(std::string_view name)
{
    return !name.empty() && name.size() <= 255 && name != "." && name != ".." && name.find('/') == name.npos &&
           name.find('\0') == name.npos;
}

bool StaysInside(std::string_view origin)
{
    return !origin.starts_with('/') && ('/' + std::string(origin) + '/').find("/../") == std::string::npos &&
           origin.find('\0') == origin.npos;
}

std::string CheckLines(std::string_view text)
{
    std::size_t end = 0;
    for (const PictureLine& line : PictureLines(text)) {
        if (line.at < end || line.size > text.size() - line.at || !IsWithin(line.picture, text))
            return "a line of a phase lies outside its text";
        end = line.at + line.size;
    }
    return {};
}

std::string CheckRecords(std::string_view records, int depth)
{
    if (depth > kDeepestFolder)
        return "folders inside each other without end";
    RecordReader reader(records);
    for (ArchiveRecord record; reader.Next(record);) {
        if (!IsWithin(record.name, records) || !IsWithin(record.origin, records) || !IsWithin(record.content, records))
            return "something lies outside the bytes";
        if (!IsHarmless(record.name) || !StaysInside(record.origin))
            return "a name leads out of its folder";
        std::string broken =
            record.kind == RecordKind::Folder ? CheckRecords(record.content, depth + 1) : CheckLines(record.content);
        if (!broken.empty())
            return broken;
    }
    return reader.IsAtEnd() ? std::string() : "an archive was accepted with what is no record in it";
}

std::string CheckWhole(std::string_view bytes)
{
    std::string trouble;
    const std::string_view records = OpenArchive(bytes, trouble);
    if (!trouble.empty())
        return records.empty() ? std::string() : "refused, and records given all the same";
    return IsWithin(records, bytes) ? CheckRecords(records, 0) : "the records lie outside the bytes";
}

std::string Sealed(std::string_view bytes)
{
    std::string sealed(bytes);
    sealed.resize(std::max(sealed.size(), kHeaderSize));
    sealed.replace(0, kArchiveMark.size(), kArchiveMark);
    std::uint32_t count = 0;
    RecordReader reader(std::string_view(sealed).substr(kHeaderSize));
    for (ArchiveRecord record; reader.Next(record);)
        ++count;
    PutNumber(sealed.data() + 8, kArchiveVersion);
    PutNumber(sealed.data() + 12, count);
    PutNumber(sealed.data() + 16, static_cast<std::uint64_t>(sealed.size() - kHeaderSize));
    PutNumber(sealed.data() + kSummedHeader, ChecksumOfArchive(sealed));
    return sealed;
}

} // namespace

std::string CheckArchive(std::string_view bytes)
{
    std::string broken = CheckWhole(bytes);
    return broken.empty() ? CheckWhole(Sealed(bytes)) : broken;
}

} // namespace fuzz
