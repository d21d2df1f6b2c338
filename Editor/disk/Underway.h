// What a program is doing to the disk, told to the next one if this one is killed meanwhile.
#pragma once

#include "Editor/disk/DiskFile.h"

#include <string>
#include <vector>

namespace editor
{

// A file with that line for as long as the object lives; a program's latest one counts. Where it cannot be made,
// nothing is told. The folder is made when it is missing; empty: no file.
class UnderwayMark
{
public:
    UnderwayMark(const std::string& folder, const std::string& line) noexcept;
    ~UnderwayMark();
    UnderwayMark(const UnderwayMark&) = delete;
    UnderwayMark& operator=(const UnderwayMark&) = delete;

private:
    std::string m_path;
    FileDescriptor m_file; // locked
};

// The lines of programs that are no more. They are told once.
std::vector<std::string> TakeInterrupted(const std::string& folder);

} // namespace editor
