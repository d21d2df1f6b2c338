#include "Kernel/Kernel.h"

#include <map>
#include <mutex>
#include <string>

namespace
{

struct IdRegistry
{
    std::mutex mutex;
    std::map<std::string, DWORD, std::less<>> ids;
};

IdRegistry& Ids()
{
    static IdRegistry s_registry;
    return s_registry;
}

} // namespace

DWORD INT_GetUniqueInterfaceID(const char* pszName)
{
    IdRegistry& registry = Ids();
    const std::scoped_lock lock(registry.mutex);
    const auto next = static_cast<DWORD>(registry.ids.size() + 1);
    return registry.ids.try_emplace(pszName ? pszName : "", next).first->second;
}
