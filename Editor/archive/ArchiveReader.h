// Reading archives, which may hold any bytes at all.
#pragma once

#include "Editor/archive/ArchiveFormat.h"

#include <string>

namespace editor
{

// Walks over records that lie one behind the other. Takes no memory and never reads outside the block; what it gives
// is checked: lengths, kinds, and names, none of which leads out of a folder.
class RecordReader
{
public:
    explicit RecordReader(std::string_view records) : m_rest(records) {}

    bool Next(ArchiveRecord& record); // false at the end, and where no record follows
    bool IsAtEnd() const { return m_rest.empty(); }
    std::string_view Rest() const { return m_rest; } // what has not been read

private:
    std::string_view m_rest;
};

// The records of a whole archive. Empty, and `trouble` says why, when the bytes are no archive, are cut short or
// damaged, or hold anything anywhere that RecordReader refuses.
std::string_view OpenArchive(std::string_view bytes, std::string& trouble);

// The checksum that belongs into the header of these bytes, which are at least a header and may be anything else.
std::uint64_t ChecksumOfArchive(std::string_view bytes);
// The same for a header that has everything but the checksum, when that of the records is known already.
std::uint64_t ChecksumOfHeader(const char* pHeader, std::uint64_t records);

} // namespace editor
