#include "Views/host/inside/NameKeys.h"

#include "Views/host/inside/ReadName.h"

bool views::NameKeys::Add(IAtom* pAtom)
{
    auto dwLength = static_cast<DWORD>(AskNameLength(pAtom, &IAtom::GetName));
    if (m_buffer.size() <= dwLength)
        m_buffer.resize(std::size_t{dwLength} + 1);
    m_buffer[0] = '\0';
    m_buffer[dwLength] = '\0';
    if (!pAtom->GetName(m_buffer.data(), &dwLength))
        return false;
    m_keys.Add(m_buffer.data());
    return true;
}
