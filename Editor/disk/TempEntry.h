// A file or folder in the making.
#pragma once

#include "Editor/disk/DiskFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// Has a name of its own in the folder where it is to stand: hidden, and known to nobody beforehand. Whoever uses
// it makes the file or folder of that name, and then puts it into its place. What has not been put there goes at the
// end, with everything in it; after a crash it stays, hidden, until the folder is read again (RemoveLeftOvers).
//
// Putting a finished file into its place makes it whole or not there for every program that looks, and after a
// crash of this one. Against a failing machine it guards only what ReplaceFile writes: making certain of every new
// file would cost more than copying it, and the originals are not gone by then.
class TempEntry
{
public:
    explicit TempEntry(const std::string& folder);
    ~TempEntry();
    TempEntry(const TempEntry&) = delete;
    TempEntry& operator=(const TempEntry&) = delete;

    int GetError() const { return m_error; } // of opening the folder; 0: none
    int Folder() const { return m_fd.Get(); }
    const std::string& Name() const { return m_name; }

    // Is it the name of one, in the making or left over from a crash? Such things are no part of what a folder holds.
    static bool IsOne(std::string_view name);

    // The error number; 0: it is in its place.
    int PutAt(const std::string& name); // EEXIST when there is something of that name
    int Replace(const std::string& name);

private:
    const std::string m_folder;
    FileDescriptor m_fd;
    int m_error = 0;
    std::string m_name; // empty once it has been put into its place
};

// Gives a file new contents: all of them or, with an error number, none. It keeps its permissions; a link stays one,
// and the file it leads to is written. Certain to be on the disk afterwards.
int ReplaceFile(const std::string& path, std::string_view bytes);

// Removes a file or a folder with everything in it, for good; links are removed, not followed. The error number. What
// could not be removed is left under its name.
int RemoveForGood(const std::string& folder, const std::string& name);

// Removes those entries that crashes have left over in the folder. `seen` are the names of entries that were just
// found there. Only what was made on this machine and is the user's own goes, and only while no program of this
// machine has an entry in the making there: another machine's, in a folder on the network, may be.
void RemoveLeftOvers(const std::string& folder, const std::vector<std::string>& seen);

} // namespace editor
