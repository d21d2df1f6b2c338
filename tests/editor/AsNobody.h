#pragma once

#include <cstdlib>
#include <unistd.h>

// The superuser may read everything: for a while the test is nobody.
class AsNobody
{
public:
    explicit AsNobody(uid_t id = 65534) : m_bChanged(geteuid() == 0 && seteuid(id) == 0) {}
    ~AsNobody()
    {
        if (m_bChanged && seteuid(0) != 0)
            std::abort();
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    const bool m_bChanged;
};
