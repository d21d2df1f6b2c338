#include "Kernel/Kernel.h"

#include <map>
#include <mutex>
#include <string>

namespace
{

struct ServiceRegistry
{
    std::mutex mutex;
    std::map<std::string, SERVICEREC, std::less<>> records; // whose nodes never move
};

ServiceRegistry& Services()
{
    static ServiceRegistry s_registry;
    return s_registry;
}

} // namespace

SERVICEREC* SRVN_GetUniqueServiceID(const char* pszName)
{
    ServiceRegistry& registry = Services();
    const std::scoped_lock lock(registry.mutex);
    return &registry.records.try_emplace(pszName ? pszName : "").first->second;
}

SERVICEPROVIDER* SRVN_InstallProvider(const char* pszName, SERVICEPROVIDER* pProvider)
{
    SERVICEREC& record = *SRVN_GetUniqueServiceID(pszName);
    const CWriteLock lock(record.lock);
    return record.provider.exchange(pProvider);
}
