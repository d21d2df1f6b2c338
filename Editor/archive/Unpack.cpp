#include "Editor/archive/Unpack.h"

#include "Editor/archive/ArchiveReader.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/TempEntry.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace editor
{
namespace
{

void SetChanged(int fd, std::int64_t changed)
{
    constexpr std::int64_t kSecond = 1'000'000'000;
    const std::int64_t rest = changed % kSecond;
    const std::int64_t before = rest < 0 ? 1 : 0; // the last whole second, also before 1970
    timespec times[2] = {};
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = static_cast<time_t>(changed / kSecond - before);
    times[1].tv_nsec = static_cast<long>(rest + before * kSecond);
    if (futimens(fd, times) != 0)
        return; // a file system may not keep times: the file is none the worse
}

int MakeFile(int nFolder, const std::string& name, const ArchiveRecord& record, Meter* pMeter)
{
    const mode_t permissions = record.permissions ? record.permissions : 0666;
    FileDescriptor handle(
        openat(nFolder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, permissions));
    if (!handle)
        return errno;
    if (const int error = WriteAll(handle.Get(), record.content, pMeter); error != 0)
        return error;
    SetChanged(handle.Get(), record.changed);
    return handle.Close() ? 0 : errno;
}

int MakeLink(int nFolder, const std::string& name, const ArchiveRecord& record)
{
    return symlinkat(std::string(record.content).c_str(), nFolder, name.c_str()) == 0 ? 0 : errno;
}

std::string Make(int nFolder, const std::string& name, const std::string& shown, const ArchiveRecord& record,
                 Meter* pMeter);

std::string MakeFolder(int nFolder, const std::string& name, const std::string& shown, const ArchiveRecord& record,
                       Meter* pMeter)
{
    const mode_t permissions = record.permissions ? record.permissions | S_IRWXU : 0777; // it is yet to be filled
    if (mkdirat(nFolder, name.c_str(), permissions) != 0)
        return Because(shown, SystemErrorText(errno));
    const FileDescriptor handle(openat(nFolder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!handle)
        return Because(shown, SystemErrorText(errno));
    RecordReader members(record.content);
    for (ArchiveRecord member; members.Next(member);) {
        const std::string memberName(member.name);
        if (std::string error = Make(handle.Get(), memberName, shown + '/' + memberName, member, pMeter);
            !error.empty())
            return error;
    }
    SetChanged(handle.Get(), record.changed);
    return {};
}

std::string Make(int nFolder, const std::string& name, const std::string& shown, const ArchiveRecord& record,
                 Meter* pMeter)
{
    if (record.kind == RecordKind::Folder)
        return MakeFolder(nFolder, name, shown, record, pMeter);
    const int error =
        record.kind == RecordKind::DeadLink ? MakeLink(nFolder, name, record) : MakeFile(nFolder, name, record, pMeter);
    return error == 0 ? std::string() : Because(shown, SystemErrorText(error));
}

} // namespace

std::string Unpack(const std::string& folder, std::string& name, const ArchiveRecord& record,
                   const std::function<std::string()>& anotherName, Meter* pMeter)
{
    constexpr int kMostNames = 100; // somebody else makes them as fast

    TempEntry temp(folder);
    if (temp.GetError() != 0)
        return Because(BaseName(folder), SystemErrorText(temp.GetError()));
    if (std::string error = Make(temp.Folder(), temp.Name(), name, record, pMeter); !error.empty())
        return error;
    int error = temp.PutAt(name);
    for (int i = 0; error == EEXIST && i < kMostNames; ++i) {
        std::string another = anotherName();
        if (another.empty())
            break;
        name = std::move(another);
        error = temp.PutAt(name);
    }
    return error == 0 ? std::string() : Because(name, SystemErrorText(error));
}

} // namespace editor
