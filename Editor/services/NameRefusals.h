// The reasons why names are refused.
#pragma once

#include "Kernel/Kernel.h"

#include <string>

namespace editor
{

// While it lives, the error service keeps the reason why a name was refused: whoever asked for the name shows it where
// it was typed. All other errors are shown as before.
class NameRefusals
{
public:
    NameRefusals();
    ~NameRefusals();
    NameRefusals(const NameRefusals&) = delete;
    NameRefusals& operator=(const NameRefusals&) = delete;

    static std::string Take(); // the last one; empty when it was taken already

private:
    struct Provider : SERVICEPROVIDER
    {
        SERVICEPROVIDER* pFormer;
    };
    static BOOL ShowError(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);

    Provider m_errors;
};

} // namespace editor
