// The order of a container's members in list and tree, and what it costs.
#include "Toolkit/base/Text.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

namespace
{

using TreeOrderTest = TreeTest;

// Step by step: each member before the first whose label is greater; then all, stably, by name.
std::string ExpectedLabels(const FakeContainer* pBox)
{
    std::vector<FakeAtom*> order;
    for (const AtomRef& pMember : pBox->members) {
        const auto isGreater = [&](FakeAtom* pOther) {
            return _mbsicmp(pOther->TreeLabel().c_str(), pMember->TreeLabel().c_str()) > 0;
        };
        order.insert(std::find_if(order.begin(), order.end(), isGreater), pMember.Get());
    }
    std::stable_sort(order.begin(), order.end(), [](const FakeAtom* x, const FakeAtom* y) {
        if (x->isLink && y->isLink && y->parent->isPhase)
            return x->position < y->position;
        return _mbsicmp(x->name.c_str(), y->name.c_str()) < 0;
    });
    std::string strLabels;
    for (const FakeAtom* pAtom : order)
        strLabels += (strLabels.empty() ? "" : ", ") + pAtom->TreeLabel();
    return strLabels;
}

TEST_F(TreeOrderTest, MembersOfEveryKindStandByTheirNamesAndEqualOnesByTheirLabels)
{
    std::mt19937 random(7);
    std::vector<FakeContainer*> boxes;
    const char* const names[] = {"a", "A", "b", "\xC3\xA4", "\xC3\x84", "ab", "B", "", "\xFF"};
    for (const char* pszKind : {"equal names", "different names", "links", "links of no phase"}) {
        boxes.push_back(MakeBox(pszKind, {}));
        boxes.back()->isPhase = boxes.size() == 3;
        for (int i = 0; i < 60; ++i) {
            const std::string strNumber = boxes.size() == 2 ? std::to_string(i * 7 % 60) : "";
            FakeAtom* const pAtom = boxes.back()->Add(names[random() % std::size(names)] + strNumber);
            if (random() % 2)
                pAtom->displayName = "shown " + std::to_string(random() % 9);
            pAtom->isModified = random() % 3 == 0;
            pAtom->isLink = boxes.size() > 2;
            pAtom->position = static_cast<int>(random() % 20);
        }
    }
    MakeBox("later", {"a", "b"})->Named("a")->displayName = "y";
    ProbeTree& tree = ShowTree();
    for (FakeContainer* pBox : boxes)
        EXPECT_EQ(ExpectedLabels(pBox), tree.Labels(pBox)) << pBox->name;

    auto* const pLater = static_cast<FakeContainer*>(world->Named("later"));
    tree.OnCreateAtom(pLater->Add("c"), pLater); // before the first greater label, though behind it by name
    EXPECT_EQ("c, y, b", tree.Labels(pLater));
}

TEST_F(TreeOrderTest, AnAnnouncementReadsEachNameAFewTimesAndOneAtomMoreOnlyAFewNames)
{
    FakeContainer* const pBox = MakeBox({});
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i)
        pBox->Add("picture " + std::to_string(random() % 1000000));
    ProbeTree& tree = ShowTree();
    int nReads = 0;
    for (const AtomRef& pMember : pBox->members)
        nReads += pMember->nNameReads;
    EXPECT_LE(nReads, 4 * 3000); // where some names are equal

    const auto countLabels = [&](const char* pszNew) {
        tree.nLabels = 0;
        tree.OnCreateAtom(pBox->Add(pszNew), pBox);
        EXPECT_EQ(0, tree.nLabels);
        EXPECT_TRUE(ExpectedLabels(pBox) == tree.Labels(pBox));
        return tree.nLabels - static_cast<int>(pBox->members.size());
    };
    EXPECT_LE(countLabels("picture 5"), 20); // their names are their labels, and stand in order

    FakeAtom* const pMiddle = pBox->members.front().Get();
    pMiddle->displayName = "z"; // greater than all that stand behind it
    tree.OnChangeAtom(pMiddle, pBox);
    FakeAtom* const pNew = pBox->Add("picture 9999999");
    tree.OnCreateAtom(pNew, pBox);
    EXPECT_EQ(tree.GetItem(pMiddle), tree.GetNextSiblingItem(tree.GetItem(pNew)));
}

class ListOrderTest : public ListTest
{
protected:
    // With the box loaded, the first row that the comparator alone would order in another way; "" when there is none.
    std::string FirstMisplaced(FakeContainer* pBox)
    {
        std::vector<IAtom*> atoms;
        for (const AtomRef& pMember : pBox->members)
            atoms.push_back(pMember.Get());
        // A name that fails is what its string held before, so both sorts must begin with the same.
        Compare(world.Get(), world.Get());
        std::qsort(atoms.data(), atoms.size(), sizeof atoms[0], &ProbeList::CompareFunc);
        Compare(world.Get(), world.Get());
        const ProbeList& list = ShowList(pBox);
        for (int i = 0; i < list.GetItemCount(); ++i) {
            if (list.Pair(i)->pAtom != atoms[static_cast<std::size_t>(i)])
                return std::to_string(i) + " " + NameOf(list.Pair(i)->pAtom);
        }
        return list.GetItemCount() == static_cast<int>(atoms.size()) ? "" : "not all are there";
    }

    static int Compare(IAtom* a, IAtom* b) { return ProbeList::CompareFunc(&a, &b); }
    static int Compare1(IAtom* a, IAtom* b) { return ProbeList::CompareFunc1(&a, &b); }
};

TEST_F(ListOrderTest, LinksOfOnePhaseAreOrderedByPositionAndAmongOthersByName)
{
    FakeContainer* const pPhase = MakeBox({"a", "b", "c"});
    pPhase->isPhase = true;
    for (const AtomRef& pMember : pPhase->members) {
        pMember->isLink = true;
        pMember->position = -pMember->name[0];
    }
    EXPECT_EQ("[c b a]", ShowList(pPhase).State());
    EXPECT_EQ(1, Compare1(pPhase->Named("a"), pPhase->Named("c")));

    const auto pOther = AtomRef::Adopt(new FakeAtom("b2"));
    EXPECT_GT(0, Compare(pPhase->Named("b"), pOther.Get())); // not a link: by name
    pPhase->isPhase = false;
    EXPECT_GT(0, Compare(pPhase->Named("a"), pPhase->Named("c"))); // no phase: by name
}

// The same order whether keys or comparisons make it: with names that differ in case, at once or late or not at all, in
// every length and beyond ASCII, some of them no UTF-8; with links among other atoms or of two phases, and names that
// fail, which are compared pair by pair.
TEST_F(ListOrderTest, AnyMembersComeInTheOrderOfTheComparator)
{
    const std::string alphabet[] = {"a", "A", "b", "B", "z", "Z",    "ä",    "Ä",
                                    "ß", "Ω", "ω", "ς", "😀", "\xFF", "\xC3", "1"};
    const std::string starts[] = {"", "picture of ", "Picture Of ", "\xF0\x9F\x98\x80 and "};
    std::mt19937 random(7);
    for (int nRound = 0; nRound < 60; ++nRound) {
        FakeContainer* const pBox = MakeBox({});
        FakeContainer* const pOther = MakeBox({});
        pBox->isPhase = pOther->isPhase = pOther->isBackward = true;
        const bool bLinks = nRound >= 40;
        for (int i = 0; i < 60; ++i) {
            std::string strName = nRound % 3 || i % 7 ? starts[nRound % 4] : "";
            for (unsigned n = random() % (bLinks ? 4 : 14); n > 0; --n)
                strName += alphabet[random() % (nRound % 2 ? 3 : std::size(alphabet))];
            FakeAtom* const pAtom = pBox->Add(strName);
            pAtom->isLink = bLinks && (nRound % 4 == 1 || (nRound % 4 == 2 && random() % 4 == 0));
            if (bLinks && nRound % 4 == 1 && random() % 2)
                pAtom->parent = pOther;
            pAtom->position = static_cast<int>(random() % 20);
            pAtom->nameFails = bLinks && nRound % 2 == 0 && random() % 10 == 0;
        }
        EXPECT_EQ("", FirstMisplaced(pBox)) << "round " << nRound;
    }
}

TEST_F(ListOrderTest, ANameOfAnImpossibleLengthIsReportedAndEqualToAnyOther)
{
    FakeContainer* const pBox = MakeBox({"b", "a"});
    pBox->Named("a")->announcedLength = 0xFFFFFFFF;
    EXPECT_EQ("[b a]", HideList(pBox).State());
    const std::vector<std::string> told = desktop.TakeMessageBoxes(); // as often as the sort compares the two
    EXPECT_EQ(std::set<std::string>{": Out of memory."}, std::set<std::string>(told.begin(), told.end()));
}

TEST_F(ListOrderTest, ALoadReadsEachNameOnce)
{
    FakeContainer* const pBox = MakeBox({});
    for (int i = 0; i < 500; ++i)
        pBox->Add("atom " + std::to_string(i * 7919 % 500));
    HideList(pBox);
    for (const AtomRef& pMember : pBox->members)
        EXPECT_EQ(1, pMember->nNameReads);
}

} // namespace
