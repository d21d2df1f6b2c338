// Phases keep showing the pictures that are renamed or moved.
#pragma once

#include "Editor/disk/DiskFile.h"
#include "Editor/history/History.h"
#include "Editor/model/PhaseIndex.h"
#include "Editor/model/PhaseText.h"
#include "Editor/work/LongWork.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace editor
{

// It is told what becomes of the library's files and folders. At the end of the step that has done it, each line of a
// phase that would now lead elsewhere is rewritten: whether its picture was renamed or moved, or a folder on the way
// there, or the phase itself, or whether something else now stands where the line leads first. Each phase is written
// once, and as a part of the step. What was cut and comes back elsewhere was moved.
class PhaseFollower
{
public:
    explicit PhaseFollower(std::string root) : m_root(root), m_index(std::move(root)) {}

    // Absolute paths in the library. For what has been done already: nothing may fail.
    void Renamed(const std::string& from, const std::string& to) noexcept;
    void Went(const std::string& path, const FileIdentity& identity) noexcept; // {}: it is not known
    void Came(const std::string& origin, const FileIdentity& identity, const std::string& to) noexcept; // a copy of it

    struct Followed
    {
        std::vector<std::string> phases; // their paths
        std::string trouble;             // the line for one that could not be written, or for what is not known
    };
    Followed Follow(History& history, LongWork& work) noexcept; // since the last time

    // How many phases would miss a picture if these went.
    int CountBroken(const std::vector<std::string>& going, LongWork& work);

private:
    struct Moves
    {
        std::map<std::string, std::string> to, from; // by where it was; by where it is
    };

    template <class Change>
    void Note(Change change) noexcept;
    std::string Own(const std::string& path) const;
    Moves TakeMoves(std::string& trouble);
    void FollowAll(History& history, LongWork& work, Followed& followed);
    std::string FollowIn(const std::string& phase, const Moves& moves, TextState& former, bool& bRewritten) const;
    PicturePlace Wanted(std::string_view picture, const std::string& folder, const Moves& moves) const;
    bool WouldBreak(const std::string& phase, const std::set<std::string>& going) const;

    const std::string m_root;
    PhaseIndex m_index;
    struct Copy
    {
        std::string to;
        FileIdentity identity;
    };
    Moves m_moves;
    std::map<std::string, Copy> m_copies;       // by what was copied: a move, if that has gone
    std::map<std::string, FileIdentity> m_gone; // what was there when it went
    bool m_bLost = false;                       // there was no memory to note something
};

} // namespace editor
