#include "Editor/model/PhaseIndex.h"

#include "Editor/disk/Directory.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/PhaseText.h"

#include <cerrno>
#include <chrono>
#include <new>

namespace editor
{
namespace
{

constexpr std::chrono::milliseconds kPatience(1000);
constexpr time_t kCoarsest = 2; // seconds: no file system's times are coarser
constexpr const char* kPartly = "not all folders of the library were looked through for phases";

std::string Line(const std::string& path, int error)
{
    return ToShown(BaseName(path)) + ": phases may not follow: " + SystemErrorText(error);
}

} // namespace

PhaseIndex::PhaseIndex(std::string root)
    : m_root(std::move(root)), m_thread([this](const std::stop_token& stop) {
          LookFromTop(stop);
          const std::lock_guard lock(m_mutex);
          m_bPartly |= m_folders.size() >= kMostFolders;
          m_bLooked = true;
          m_over.notify_all();
      })
{}

void PhaseIndex::LookFromTop(const std::stop_token& stop)
try {
    LookThrough({m_root}, stop);
} catch (const std::bad_alloc&) {
    const std::lock_guard lock(m_mutex);
    m_bPartly = true;
}

bool PhaseIndex::Stamp::IsOf(const struct stat& status) const
{
    return bSettled && identity == FileIdentity{status.st_dev, status.st_ino} && size == status.st_size &&
           changed.tv_sec == status.st_mtim.tv_sec && changed.tv_nsec == status.st_mtim.tv_nsec;
}

PhaseIndex::Stamp PhaseIndex::StampOf(const struct stat& status)
{
    return {{status.st_dev, status.st_ino},
            status.st_mtim,
            status.st_size,
            status.st_mtim.tv_sec + kCoarsest < time(nullptr)};
}

std::string PhaseIndex::Update()
{
    {
        std::unique_lock lock(m_mutex);
        if (!m_over.wait_for(lock, kPatience, [this] { return m_bLooked; }))
            return kPartly;
    }
    std::string trouble; // the thread has ended
    std::vector<std::string> gone, changed;
    for (auto& [path, folder] : m_folders) {
        struct stat status;
        if (stat(path.c_str(), &status) != 0)
            (LeadsNowhere(errno) ? gone : changed).push_back(path);
        else if (!folder.stamp.IsOf(status))
            changed.push_back(path);
        else if (std::string line = UpdatePhases(path, folder); !line.empty())
            trouble = std::move(line);
    }
    for (const std::string& path : gone)
        Forget(path);
    std::deque<std::string> below;
    const bool bPartly = std::exchange(m_bPartly, true); // in the middle
    for (const std::string& path : changed)
        if (std::string line = UpdateFolder(path, below); !line.empty())
            trouble = std::move(line);
    LookThrough(std::move(below), {});
    m_bPartly = bPartly || m_folders.size() >= kMostFolders;
    return trouble.empty() && m_bPartly ? kPartly : trouble;
}

std::string PhaseIndex::UpdatePhases(const std::string& path, Folder& folder)
{
    std::string trouble;
    for (auto& [phasePath, phase] : folder.phases) {
        Phase now = ReadPhase(phasePath, path, phase);
        if (now.named == phase.named && now.error == phase.error) {
            phase = std::move(now);
            continue;
        }
        if (now.error != 0 && phase.error == 0)
            trouble = Line(phasePath, now.error);
        NoteNames(phasePath, phase, false);
        phase = std::move(now);
        NoteNames(phasePath, phase, true);
    }
    return trouble;
}

std::string PhaseIndex::UpdateFolder(const std::string& path, std::deque<std::string>& below)
{
    Folder now;
    const Folder& former = m_folders[path];
    if (const int error = ReadFolder(path, former, now); error != 0) {
        if (LeadsNowhere(error))
            Forget(path);
        return LeadsNowhere(error) ? std::string() : Line(path, error);
    }
    std::string trouble;
    for (const auto& [phasePath, phase] : now.phases)
        if (const auto known = former.phases.find(phasePath);
            phase.error != 0 && (known == former.phases.end() || known->second.error == 0))
            trouble = Line(phasePath, phase.error);
    below.insert(below.end(), now.folders.begin(), now.folders.end());
    below.insert(below.end(), now.links.begin(), now.links.end());
    Forget(path);
    Note(path, std::move(now));
    return trouble;
}

void PhaseIndex::AddNaming(const std::string& path, std::set<std::string>& phases) const
{
    const std::lock_guard lock(m_mutex);
    for (auto at = m_naming.lower_bound({path, {}}); at != m_naming.end() && at->first == path; ++at)
        phases.insert(at->second);
    const std::string below = path + '/';
    for (auto at = m_naming.lower_bound({below, {}}); at != m_naming.end() && at->first.starts_with(below); ++at)
        phases.insert(at->second);
}

void PhaseIndex::AddAt(const std::string& path, std::set<std::string>& phases) const
{
    const std::lock_guard lock(m_mutex);
    const auto add = [&](const Folder& folder) {
        for (const auto& [phasePath, phase] : folder.phases)
            phases.insert(phasePath);
    };
    if (ExtensionOf(path) == "phase")
        phases.insert(path);
    if (const auto at = m_folders.find(path); at != m_folders.end())
        add(at->second);
    const std::string below = path + '/';
    for (auto at = m_folders.lower_bound(below); at != m_folders.end() && at->first.starts_with(below); ++at)
        add(at->second);
}

// As wide before deep, and what links lead to last: what has a path of its own is found under that. The disk is read
// without the lock: it may take its time.
void PhaseIndex::LookThrough(std::deque<std::string> folders, const std::stop_token& stop)
{
    std::deque<std::string> links;
    while (!(folders.empty() && links.empty()) && !stop.stop_requested()) {
        std::deque<std::string>& from = folders.empty() ? links : folders;
        const std::string path = std::move(from.front());
        from.pop_front();
        Folder folder;
        if (IsKnown(path) || ReadFolder(path, {}, folder) != 0)
            continue;
        folders.insert(folders.end(), folder.folders.begin(), folder.folders.end());
        links.insert(links.end(), folder.links.begin(), folder.links.end());
        const std::lock_guard lock(m_mutex);
        if (m_folders.size() >= kMostFolders)
            return;
        Note(path, std::move(folder));
    }
}

bool PhaseIndex::IsKnown(const std::string& path) const
{
    struct stat status;
    const std::lock_guard lock(m_mutex);
    return stat(path.c_str(), &status) == 0 && m_identities.contains({status.st_dev, status.st_ino});
}

int PhaseIndex::ReadFolder(const std::string& path, const Folder& former, Folder& folder) const
{
    struct stat status;
    if (stat(path.c_str(), &status) != 0)
        return errno;
    folder.stamp = StampOf(status);
    Directory directory(path);
    directory.ForEach([&](const char* pszName, bool isDirectory) {
        const std::string_view name = pszName;
        if (!isDirectory && !name.ends_with('e') && !name.ends_with('E'))
            return true; // nearly all: no more is made of them
        std::string member = path + '/' + pszName;
        if (isDirectory)
            (lstat(member.c_str(), &status) == 0 && S_ISLNK(status.st_mode) ? folder.links : folder.folders)
                .push_back(std::move(member));
        else if (ExtensionOf(name) == "phase") {
            const auto known = former.phases.find(member);
            folder.phases[member] = ReadPhase(member, path, known == former.phases.end() ? Phase() : known->second);
        }
        return true;
    });
    return directory.GetError();
}

PhaseIndex::Phase PhaseIndex::ReadPhase(const std::string& path, const std::string& folder, const Phase& former) const
{
    Phase phase;
    struct stat status;
    TextState state;
    const bool bThere = stat(path.c_str(), &status) == 0;
    if (bThere && former.stamp.IsOf(status))
        return former;
    phase.error = bThere ? ReadText(path, kLargestPhase, state) : errno;
    if (LeadsNowhere(phase.error) || phase.error == EFBIG || phase.error == EINVAL)
        phase.error = 0;
    if (bThere && phase.error == 0)
        phase.stamp = StampOf(status);
    if (IsPhaseText(state.text))
        for (const PictureLine& line : PictureLines(state.text))
            for (std::string& named : PlacesOf(line.picture, folder, m_root))
                phase.named.push_back(std::move(named));
    return phase;
}

void PhaseIndex::Note(const std::string& path, Folder folder)
{
    m_identities.insert(folder.stamp.identity);
    for (const auto& [phasePath, phase] : folder.phases)
        NoteNames(phasePath, phase, true);
    m_folders[path] = std::move(folder);
}

void PhaseIndex::Forget(const std::string& path)
{
    const auto at = m_folders.find(path);
    m_identities.erase(at->second.stamp.identity);
    for (const auto& [phasePath, phase] : at->second.phases)
        NoteNames(phasePath, phase, false);
    m_folders.erase(at);
}

void PhaseIndex::NoteNames(const std::string& path, const Phase& phase, bool bThere)
{
    for (const std::string& named : phase.named) {
        if (bThere)
            m_naming.emplace(named, path);
        else
            m_naming.erase({named, path});
    }
}

} // namespace editor
