// The list view's order, which is also its test of sameness. What is found by it is in inside/Rows.cpp.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"
#include "Views/host/inside/AtomOrder.h"
#include "Views/host/inside/ReadName.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/inside/MemberOrder.h"

#include <cstring>

namespace
{

IAtom* AtomAt(const void* pElement)
{
    void* pAtom;
    std::memcpy(&pAtom, pElement, sizeof pAtom); // arrays of holders and of plain pointers alike
    return static_cast<IAtom*>(pAtom);
}

// A missing atom comes after every other. strA and strB keep the names read last: a name that cannot be read now is
// what its string held before, cut to the length announced.
int CompareAtoms(IAtom* a, IAtom* b, CString& strA, CString& strB, UINT nOrder)
{
    if (!a || !b)
        return static_cast<int>(!a) - static_cast<int>(!b);
    try {
        if (const std::optional<int> order = views::CompareLinks(a, b))
            return *order;
        const int nLengthA = views::AskNameLength(a, &IAtom::GetName);
        const int nLengthB = views::AskNameLength(b, &IAtom::GetName);
        views::FillName(a, &IAtom::GetName, nLengthA, strA);
        views::FillName(b, &IAtom::GetName, nLengthB, strB);
        if (nOrder == MOF_BYNAME)
            return _mbsicmp(strA, strB);
        return views::AtomKey(a, strA, nOrder).compare(views::AtomKey(b, strB, nOrder));
    } catch (CMemoryException& e) {
        e.ReportError();
        return 0;
    }
}

struct NAMES
{
    CString strA, strB;
};

// The names read last are taken along: whoever is asked for a name may have other atoms compared.
int CompareAtoms(IAtom* a, IAtom* b, NAMES& last, UINT nOrder = MOF_BYNAME)
{
    NAMES names = std::move(last);
    const int nCompared = CompareAtoms(a, b, names.strA, names.strB, nOrder);
    last = std::move(names);
    return nCompared;
}

template <UINT nOrder>
int CompareInOrder(const void* p1, const void* p2)
{
    static NAMES s_last;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_last, nOrder);
}

} // namespace

views::AtomComparator CObjectsList::ComparatorFor(UINT nOrder)
{
    static constexpr views::AtomComparator comparators[] = {&CompareFunc, &CompareInOrder<MOF_NATURAL>,
                                                            &CompareInOrder<MOF_CONTAINERSFIRST>,
                                                            &CompareInOrder<MOF_NATURAL | MOF_CONTAINERSFIRST>};
    return comparators[nOrder];
}

void CObjectsList::SetMemberOrder(UINT nOrder)
{
    m_nOrder = nOrder & (MOF_NATURAL | MOF_CONTAINERSFIRST);
}

int CObjectsList::CompareFunc(const void* p1, const void* p2)
{
    static NAMES s_last;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_last);
}

int CObjectsList::CompareFunc1(const void* p1, const void* p2)
{
    static NAMES s_last;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_last) > 0 ? 1 : 0;
}

// An owner-data control has nothing to sort; the order is made when members are loaded.
void CObjectsList::UpdateIndexes()
{
    PostMessage(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareFunc));
}
