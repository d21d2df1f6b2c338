#include "Editor/frame/DraggedOut.h"

#include <algorithm>
#include <unistd.h>

namespace editor
{
namespace
{

constexpr std::size_t kMost = 1000;
constexpr unsigned kLongestPause = 16'000;

} // namespace

DraggedOut::DraggedOut(const ActiveMembers& members)
{
    for (std::size_t i = 0; i < std::min(members.size(), kMost); ++i)
        if (CMember* const pMember = CMember::Of(members[i].pAtom.Get()); pMember && pMember->Container())
            m_members.push_back(CStubRef<CMember>::Share(pMember));
}

unsigned DraggedOut::NextCheck()
{
    if (m_members.empty() || m_nPause > kLongestPause) {
        m_members.clear();
        return 0;
    }
    const unsigned nPause = m_nPause;
    m_nPause *= 2;
    return nPause;
}

std::vector<CStubRef<CContainer>> DraggedOut::Check()
{
    std::vector<CStubRef<CContainer>> changed;
    std::erase_if(m_members, [&](const CStubRef<CMember>& pMember) {
        if (access(pMember->Path().c_str(), F_OK) == 0)
            return false;
        CContainer* const pContainer = pMember->Container();
        if (std::none_of(changed.begin(), changed.end(), [&](const auto& p) { return p.Get() == pContainer; }))
            changed.push_back(CStubRef<CContainer>::Share(pContainer));
        return true;
    });
    return changed;
}

} // namespace editor
