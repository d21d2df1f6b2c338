// Inside the library: putting a container's members in order when they are loaded.
#pragma once

#include "Views/host/IAtom.h"
#include "Views/host/StubRef.h"

#include <vector>

namespace views
{

using AtomArray = std::vector<CStubRef<IAtom>>;
static_assert(sizeof(CStubRef<IAtom>) == sizeof(void*), "comparators are handed the elements as pointers");

using AtomComparator = int (*)(const void* p1, const void* p2);

// Orders the members as qsort with `compare`, CObjectsList's comparator for the order (MOF_*), orders them; equal ones
// keep their order.
//
// A comparison asks the host for two interfaces and two names, and sorting a million members takes twenty million
// comparisons. So keys are read once for each member wherever keys alone decide: when no member is an image link and
// every name can be read, the folded names; when all are image links of one phase, the positions. Anything else
// (links among other atoms, names that fail) is compared pair by pair.
//
// True when names alone have decided.
bool OrderMembers(AtomArray& atoms, AtomComparator compare, UINT nOrder);

} // namespace views
