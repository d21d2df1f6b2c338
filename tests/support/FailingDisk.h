// Lets the disk fail under the program, and makes it seem to be several.
//
// The file operations of the C library are replaced for the test program and for the libraries it loads. They do what
// they always do, unless one of these lives.
#pragma once

#include <string>
#include <vector>

enum class DiskFault
{
    InputOutput, // EIO, once
    Forbidden,   // EACCES, once
    Full,        // ENOSPC; from then on nothing more fits onto the disk
    HalfWritten, // half of what is written fits, and nothing more from then on
    Death        // the process ends there; what it was writing is written half
};

// While it lives, the program's operations are counted, whatever thread they are of, and the nth of them (from 1)
// fails.
class FailOperation
{
public:
    struct Operation
    {
        const char* pszName;
        bool bChanges, bGrows, bWrites; // what is on the disk; so that room is needed; bytes into a file
    };

    explicit FailOperation(int nth = 0, DiskFault fault = DiskFault::InputOutput);
    ~FailOperation();
    FailOperation(const FailOperation&) = delete;
    FailOperation& operator=(const FailOperation&) = delete;

    static const std::vector<Operation>& Seen(); // since the last one was made
    static bool CanHappen(const Operation& operation, DiskFault fault);
};

// What a process that has met DiskFault::Death ends with.
inline constexpr int kDiskDeath = 86;

// While it lives, what is at the path or below it is on a file system of its own, as far as one can tell by looking at
// it and by renaming.
class OwnFileSystem
{
public:
    explicit OwnFileSystem(std::string path); // absolute, without links
    ~OwnFileSystem();
    OwnFileSystem(const OwnFileSystem&) = delete;
    OwnFileSystem& operator=(const OwnFileSystem&) = delete;
};
