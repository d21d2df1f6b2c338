// The rows' order when a container is loaded.
#include "tests/views/ListTest.h"

#include <cstdlib>
#include <random>
#include <set>

namespace
{

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
