// What an archive's bytes mean, version 2.
//
// A header, then the objects, one record behind the other. Numbers are little-endian.
//
//   header   8  "AtomArch"
//            4  version, 2
//            4  number of objects
//            8  length of all records, exactly what follows the header
//            8  checksum of all records and of the 24 bytes before it
//
//   record   1  kind: 1 a file, 2 a folder, 3 a line of a phase, 4 a link that leads nowhere
//            1  0
//            2  length of the name
//            2  length of the origin
//            2  permissions of the original, nine bits; 0: those of a new file
//            8  time of the last change, in nanoseconds since 1970
//            8  device and
//            8  inode of the original: is it still there, and is something inside it?
//            4  length of the content
//               name, origin, content
//
// A file's content is its bytes (a phase's: its lines), a folder's content is the records of what is in it, a line has
// none; that of a link that leads nowhere is what it says. Names are single names, never paths. Of any other symbolic
// link what it leads to is carried. The origin is the path of the object (of a line: of its picture) below its library;
// it is empty for what is inside a folder. It is only ever looked up in the library that is pasted into, nothing is
// made at it.
//
// The checksum goes on from record to record, the content before what stands in front of it, and ends with the header:
// so a writer sums what it has just read, while that is still near the processor, and a folder's length when it is
// known. A folder's content is summed record by record. Bytes where no record can be are summed as they are.
#pragma once

#include "Editor/disk/DiskFile.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace editor
{

enum class RecordKind : std::uint8_t
{
    File = 1,
    Folder = 2,
    Link = 3,
    DeadLink = 4
};

struct ArchiveRecord
{
    RecordKind kind = RecordKind::File;
    std::uint16_t permissions = 0; // 0: those of a new file
    std::int64_t changed = 0;      // nanoseconds since 1970
    FileIdentity identity;
    std::string_view head; // all before the content; this and what follows lies in the archive's bytes
    std::string_view name, origin, content;
};

inline constexpr std::string_view kArchiveMark = "AtomArch";
inline constexpr std::uint32_t kArchiveVersion = 2;
inline constexpr std::size_t kHeaderSize = 32;
inline constexpr std::size_t kSummedHeader = 24; // its part that counts for the checksum
inline constexpr std::size_t kRecordSize = 36;
inline constexpr int kDeepestFolder = 200; // folders inside each other

static_assert(std::endian::native == std::endian::little, "numbers are stored as they are in memory");

// A number in a block of bytes, aligned or not.
template <class Number>
Number NumberAt(const char* pBytes)
{
    Number number;
    std::memcpy(&number, pBytes, sizeof number);
    return number;
}
template <class Number>
void PutNumber(char* pBytes, Number number)
{
    std::memcpy(pBytes, &number, sizeof number);
}

} // namespace editor
