#include "Toolkit/base/Apart.h"

#include <new>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace toolkit
{
namespace
{

constexpr off_t kLarge = 16 << 20; // bytes: up to here it takes some milliseconds at most

} // namespace

void RunApart(std::function<void()> task)
{
    try {
        std::thread(task).detach();
    } catch (const std::system_error&) {
        task();
    } catch (const std::bad_alloc&) {
        task();
    }
}

void CloseApart(int fd)
{
    struct stat status;
    if (fstat(fd, &status) == 0 && status.st_nlink == 0 && status.st_size >= kLarge)
        RunApart([fd] { close(fd); });
    else
        close(fd);
}

} // namespace toolkit
