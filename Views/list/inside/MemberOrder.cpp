#include "Views/list/inside/MemberOrder.h"

#include "Toolkit/base/Exception.h"
#include "Views/host/IPhase.h"
#include "Views/host/inside/AtomOrder.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace
{

using views::AtomArray;

// atoms[i] becomes what atoms[order[i].nIndex] was.
template <class Keys>
void Arrange(AtomArray& atoms, const Keys& order)
{
    AtomArray arranged;
    arranged.reserve(atoms.size() + atoms.size() / 16); // with room for what is created later
    for (const auto& key : order)
        arranged.push_back(std::move(atoms[key.nIndex]));
    atoms = std::move(arranged);
}

bool OrderByName(AtomArray& atoms, UINT nOrder)
{
    views::NameKeys keys(atoms.size(), nOrder);
    for (const CStubRef<IAtom>& pAtom : atoms) {
        if (!pAtom || CStubRef<IImageLink>::From(pAtom.Get()) || !keys.Add(pAtom.Get()))
            return false;
    }
    Arrange(atoms, keys.Sort());
    return true;
}

struct PositionKey
{
    int nPosition;
    std::uint32_t nIndex;
};

// Where the link stands in the one phase of all links, which the first link names. Nothing for another phase's.
std::optional<int> PositionIn(CStubRef<IPhase>& pPhase, IImageLink* pLink)
{
    CStubRef<IPhase> pOwn;
    if (const auto pAtom = CStubRef<IAtom>::From(pLink))
        pAtom->GetContainer(pOwn.Receive(), IID_IPhase);
    if (!pOwn || (pPhase && pPhase.Get() != pOwn.Get()))
        return std::nullopt;
    pPhase = std::move(pOwn);
    return pPhase->GetPosition(pLink);
}

bool OrderByPosition(AtomArray& atoms)
{
    CStubRef<IPhase> pPhase;
    std::vector<PositionKey> keys;
    keys.reserve(atoms.size());
    for (const CStubRef<IAtom>& pAtom : atoms) {
        const auto pLink = CStubRef<IImageLink>::From(pAtom.Get());
        const std::optional<int> position = pLink ? PositionIn(pPhase, pLink.Get()) : std::nullopt;
        if (!position)
            return false;
        keys.push_back({*position, static_cast<std::uint32_t>(keys.size())});
    }
    std::ranges::stable_sort(keys, {}, &PositionKey::nPosition);
    Arrange(atoms, keys);
    return true;
}

} // namespace

bool views::OrderMembers(AtomArray& atoms, AtomComparator compare, UINT nOrder)
{
    if (atoms.empty())
        return true;
    try {
        const bool bLinks = static_cast<bool>(CStubRef<IImageLink>::From(atoms.front().Get()));
        if (bLinks ? OrderByPosition(atoms) : OrderByName(atoms, nOrder))
            return !bLinks;
    } catch (CMemoryException&) {
        // No room for the keys: comparing needs none.
    }
    std::qsort(atoms.data(), atoms.size(), sizeof atoms[0], compare); // a holder may be moved as the pointer it is
    return false;
}
