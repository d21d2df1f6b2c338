// Which phases of a library name which paths.
#pragma once

#include "Editor/disk/DiskFile.h"

#include <condition_variable>
#include <ctime>
#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace editor
{

// Nobody but the phases themselves knows what they show, and a library may be of any size. So a thread of its own looks
// through all folders once, and reads the phases; from then on a look at each folder's and each phase's own times tells
// which are to be read again. Folders are read under the path by which they are reached without links, if there is one.
class PhaseIndex
{
public:
    explicit PhaseIndex(std::string root); // absolute
    PhaseIndex(const PhaseIndex&) = delete;
    PhaseIndex& operator=(const PhaseIndex&) = delete;

    // What is asked next is answered as the disk is now. Empty, or a line: about what could be read so far and cannot
    // be any more, or that not all folders have been looked through. The first look is waited for, but not for long;
    // and there may be more than kMostFolders.
    std::string Update();
    static constexpr std::size_t kMostFolders = 20'000;

    // The paths of phases with a line that leads to that path, or below it, if anything is there; and of those that lie
    // there or below.
    void AddNaming(const std::string& path, std::set<std::string>& phases) const;
    void AddAt(const std::string& path, std::set<std::string>& phases) const;

private:
    // Tells whether a file or folder was changed since it was read.
    struct Stamp
    {
        FileIdentity identity;
        timespec changed{};
        off_t size = 0;
        bool bSettled = false; // read so long after its last change that one since would show

        bool IsOf(const struct stat& status) const;
    };
    struct Phase
    {
        Stamp stamp;
        std::vector<std::string> named; // each path that a line may lead to
        int error = 0;                  // why they are not known
    };
    struct Folder
    {
        Stamp stamp;
        std::vector<std::string> folders, links; // in it, and what links there lead to
        std::map<std::string, Phase> phases;     // by their paths
    };

    static Stamp StampOf(const struct stat& status);
    // The error number. Phases that have not changed since they were read are not read again.
    int ReadFolder(const std::string& path, const Folder& former, Folder& folder) const;
    Phase ReadPhase(const std::string& path, const std::string& folder, const Phase& former) const;
    void LookFromTop(const std::stop_token& stop);
    void LookThrough(std::deque<std::string> folders, const std::stop_token& stop);
    std::string UpdatePhases(const std::string& path, Folder& folder);
    std::string UpdateFolder(const std::string& path, std::deque<std::string>& below);
    bool IsKnown(const std::string& path) const;
    void Note(const std::string& path, Folder folder);
    void Forget(const std::string& path);
    void NoteNames(const std::string& path, const Phase& phase, bool bThere);

    const std::string m_root;
    mutable std::mutex m_mutex; // guards what follows
    std::condition_variable m_over;
    bool m_bLooked = false, m_bPartly = false; // all folders; but not all of them
    std::map<std::string, Folder> m_folders;
    std::set<FileIdentity> m_identities;                    // theirs
    std::set<std::pair<std::string, std::string>> m_naming; // a path, and a phase that names it
    std::jthread m_thread;                                  // looks through all folders
};

} // namespace editor
