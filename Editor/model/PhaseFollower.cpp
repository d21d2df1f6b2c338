#include "Editor/model/PhaseFollower.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/PhaseText.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <new>
#include <unistd.h>
#include <utility>

namespace editor
{
namespace
{

// The error number; 0: something is there.
int Look(const std::string& path)
{
    return access(path.c_str(), F_OK) == 0 ? 0 : errno;
}

// Where what is at the path, or was, is by these moves; the same when neither it nor what it is in was moved.
std::string Moved(const std::string& path, const std::map<std::string, std::string>& moves)
{
    for (std::string top = path; !top.empty(); top = FolderOf(top))
        if (const auto move = moves.find(top); move != moves.end())
            return move->second + path.substr(top.size());
    return path;
}

constexpr const char* kNoMemory = "there was no memory to have phases follow";

} // namespace

// A folder that several paths lead to has one of its own.
std::string PhaseFollower::Own(const std::string& path) const
{
    std::error_code unreadable;
    const std::string folder = std::filesystem::canonical(FolderOf(path), unreadable).string();
    return !unreadable && folder.starts_with(m_root) ? folder + path.substr(path.rfind('/')) : path;
}

template <class Change>
void PhaseFollower::Note(Change change) noexcept
{
    try {
        change();
    } catch (const std::bad_alloc&) {
        m_bLost = true;
    }
}

void PhaseFollower::Renamed(const std::string& from, const std::string& to) noexcept
{
    Note([&] {
        const std::string now = Own(to), former = FolderOf(now) + from.substr(from.rfind('/'));
        m_moves.to[former] = now;
        m_moves.from[now] = former;
    });
}

void PhaseFollower::Went(const std::string& path, const FileIdentity& identity) noexcept
{
    Note([&] { m_gone[Own(path)] = identity; });
}

void PhaseFollower::Came(const std::string& origin, const FileIdentity& identity, const std::string& to) noexcept
{
    Note([&] { m_copies[Own(origin)] = {Own(to), identity}; });
}

// What comes from another library may have come from the same path there.
PhaseFollower::Moves PhaseFollower::TakeMoves(std::string& trouble)
{
    Moves moves = std::exchange(m_moves, {});
    for (const auto& [former, copy] : std::exchange(m_copies, {})) {
        const auto gone = m_gone.find(former);
        if (gone == m_gone.end() || (gone->second != copy.identity && gone->second != FileIdentity()))
            continue;
        const int error = Look(former);
        if (error == 0)
            continue;
        if (!LeadsNowhere(error)) {
            trouble = ToShown(BaseName(former)) + ": phases may not follow: " + SystemErrorText(error);
            continue;
        }
        moves.to[former] = copy.to;
        moves.from[copy.to] = former;
    }
    return moves;
}

PhaseFollower::Followed PhaseFollower::Follow(History& history, LongWork& work) noexcept
{
    Followed followed;
    Note([&] { FollowAll(history, work, followed); });
    if (std::exchange(m_bLost, false))
        Note([&] { followed.trouble = kNoMemory; });
    return followed;
}

void PhaseFollower::FollowAll(History& history, LongWork& work, Followed& followed)
{
    const Moves moves = TakeMoves(followed.trouble);
    if (moves.to.empty())
        return;
    const bool bPart = work.IsUnderWay(); // of what counts for itself
    const LongWork::Command command(work, "Having phases follow", Progress::Unit::Objects);
    if (std::string trouble = Aside(work, [&] { return m_index.Update(); }); !trouble.empty())
        followed.trouble = std::move(trouble);
    std::set<std::string> phases;
    for (const auto& [from, to] : moves.to) {
        m_index.AddNaming(from, phases);
        m_index.AddNaming(to, phases);
        m_index.AddAt(to, phases);
    }
    Meter* const pMeter = bPart ? nullptr : &work.GetMeter();
    if (pMeter)
        pMeter->SetTotal(phases.size());
    for (const std::string& phase : phases) {
        TextState former;
        bool bRewritten = false;
        const auto follow = [&] { return FollowIn(phase, moves, former, bRewritten); };
        if (const std::string reason = Aside(work, follow); !reason.empty())
            followed.trouble = ToShown(BaseName(phase)) + ": cannot follow: " + reason;
        if (pMeter)
            pMeter->Did(1);
        if (!bRewritten)
            continue;
        history.Rewrote(phase, former);
        followed.phases.push_back(phase);
    }
}

// All else in the text stays byte for byte.
std::string PhaseFollower::FollowIn(const std::string& phase, const Moves& moves, TextState& former,
                                    bool& bRewritten) const
{
    if (const int error = ReadText(phase, kLargestPhase, former); error != 0)
        return LeadsNowhere(error) ? std::string() : SystemErrorText(error);
    if (!IsPhaseText(former.text))
        return {};
    const std::string folder = FolderOf(phase), formerFolder = FolderOf(Moved(phase, moves.from));
    std::string text, trouble;
    std::size_t done = 0;
    for (const PictureLine& line : PictureLines(former.text)) {
        PicturePlace wanted = Wanted(line.picture, formerFolder, moves);
        if (!wanted.isThere && folder != formerFolder) // a line that was rewritten already when the phase came here
            wanted = Wanted(line.picture, folder, moves);
        const PicturePlace now = FindPicture(line.picture, folder, m_root);
        int error = wanted.error ? wanted.error : now.error;
        if (error == 0 && (!wanted.isThere || (now.isThere && now.path == wanted.path)))
            continue;
        const std::string way = error == 0 ? LineFor(wanted.path, folder, m_root, error) : std::string();
        if (way.empty()) {
            trouble = error == 0 ? "no line can lead to " + ToShown(BaseName(wanted.path)) : SystemErrorText(error);
            continue;
        }
        const auto at = static_cast<std::size_t>(line.picture.data() - former.text.data());
        text.append(former.text, done, at - done).append(way);
        done = at + line.picture.size();
    }
    if (done == 0)
        return trouble;
    std::string reason = WritePhaseText(phase, former, text.append(former.text, done, text.npos));
    bRewritten = reason.empty();
    return bRewritten ? trouble : reason;
}

// Where the picture is now that a line of a phase in that folder led to, if it led anywhere. What is there by these
// moves alone was not there.
PicturePlace PhaseFollower::Wanted(std::string_view picture, const std::string& folder, const Moves& moves) const
{
    for (const std::string& place : PlacesOf(picture, folder, m_root)) {
        std::string now = Moved(place, moves.to);
        if (now == place && Moved(place, moves.from) != place)
            continue;
        if (const int error = Look(now); !LeadsNowhere(error))
            return {std::move(now), error == 0, error};
    }
    return {};
}

int PhaseFollower::CountBroken(const std::vector<std::string>& going, LongWork& work)
{
    const LongWork::Command command(work, "Looking for phases", Progress::Unit::Objects);
    Aside(work, [&] { m_index.Update(); });
    std::set<std::string> phases, gone;
    for (const std::string& path : going)
        m_index.AddNaming(*gone.insert(Own(path)).first, phases);
    const auto wouldBreak = [&](const std::string& phase) {
        return Aside(work, [&] { return WouldBreak(phase, gone); });
    };
    return static_cast<int>(std::count_if(phases.begin(), phases.end(), wouldBreak));
}

bool PhaseFollower::WouldBreak(const std::string& phase, const std::set<std::string>& going) const
{
    const auto goes = [&](std::string path) {
        for (; path.size() > m_root.size(); path = FolderOf(path))
            if (going.contains(path))
                return true;
        return false;
    };
    std::string text;
    if (goes(phase) || !ReadPhaseText(phase, text).empty())
        return false;
    const std::vector<PictureLine> lines = PictureLines(text);
    return std::any_of(lines.begin(), lines.end(), [&](const PictureLine& line) {
        const PicturePlace place = FindPicture(line.picture, FolderOf(phase), m_root);
        return place.isThere && goes(place.path);
    });
}

} // namespace editor
