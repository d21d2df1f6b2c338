// The order of a container's members, and what it costs.
#include "Toolkit/base/Text.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <random>

namespace
{

class TreeOrderTest : public TreeTest
{
protected:
    static std::string LabelOf(const FakeAtom* pAtom)
    {
        return pAtom->displayName.value_or(pAtom->name) + (pAtom->isModified ? " *" : "");
    }

    // Step by step: each member before the first whose label is greater; then all, stably, by name.
    static std::string ExpectedOrder(const FakeContainer* pBox)
    {
        std::vector<FakeAtom*> order;
        for (const AtomRef& pMember : pBox->members) {
            const auto isGreater = [&](FakeAtom* pOther) {
                return _mbsicmp(LabelOf(pOther).c_str(), LabelOf(pMember.Get()).c_str()) > 0;
            };
            order.insert(std::find_if(order.begin(), order.end(), isGreater), pMember.Get());
        }
        std::stable_sort(order.begin(), order.end(), [](const FakeAtom* x, const FakeAtom* y) {
            return _mbsicmp(x->name.c_str(), y->name.c_str()) < 0;
        });
        std::string strOrder;
        for (const FakeAtom* pAtom : order)
            strOrder += (strOrder.empty() ? "" : ", ") + LabelOf(pAtom);
        return strOrder;
    }

    FakeContainer* MakeBigBox(int nMembers)
    {
        FakeContainer* const pBox = MakeBox("box", {});
        std::mt19937 random(1);
        for (int i = 0; i < nMembers; ++i)
            pBox->Add("picture " + std::to_string(random() % 1000000) + ".png");
        return pBox;
    }
};

TEST_F(TreeOrderTest, MembersStandByTheirNamesAndEqualOnesByTheirLabels)
{
    std::mt19937 random(7);
    FakeContainer* const pBox = MakeBox("box", {});
    const char* const names[] = {"a", "A", "b", "\xC3\xA4", "\xC3\x84", "ab", "B", "", "\xFF"};
    for (int i = 0; i < 60; ++i) {
        FakeAtom* const pAtom = pBox->Add(names[random() % std::size(names)]);
        if (random() % 2)
            pAtom->displayName = "shown " + std::to_string(random() % 9);
        pAtom->isModified = random() % 3 == 0;
    }
    ProbeTree& tree = ShowTree();
    EXPECT_EQ(ExpectedOrder(pBox), tree.Labels(tree.GetItem(pBox)));
}

TEST_F(TreeOrderTest, ImageLinksStandByTheirPositionsAndElseNamesDecide)
{
    FakeContainer* const pPhase = MakeBox("phase", {"five", "two", "nine"});
    pPhase->isPhase = true;
    for (const auto& [pszName, nPosition] : {std::pair("five", 5), std::pair("two", 2), std::pair("nine", 9)}) {
        pPhase->Named(pszName)->isLink = true;
        pPhase->Named(pszName)->position = nPosition;
    }
    FakeContainer* const pMixed = MakeBox("mixed", {"beta", "Alpha", "link"});
    pMixed->Named("link")->isLink = true; // one link only: nothing to compare positions with
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [mixed [Alpha beta link] phase [two five nine]]", tree.State());
}

TEST_F(TreeOrderTest, ALaterAtomTakesThePlaceOfItsLabelAmongSiblingsInAnyOrder)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b", "c"});
    pBox->Named("a")->displayName = "y";
    pBox->Named("b")->displayName = "x";
    pBox->Named("c")->displayName = "z";
    ProbeTree& tree = ShowTree();
    const HTREEITEM hBox = tree.GetItem(pBox);
    EXPECT_EQ("y, x, z", tree.Labels(hBox));
    FakeAtom* const pNew = pBox->Add("aa");
    pNew->displayName = "y";
    EXPECT_TRUE(tree.OnCreateAtom(pNew, pBox));
    EXPECT_EQ("y, x, y, z", tree.Labels(hBox));
}

TEST_F(TreeOrderTest, ANameThatCannotBeReadDoesNotKeepTheOthersFromTheirPlaces)
{
    FakeContainer* const pBox = MakeBox("box", {"c", "bad", "a", "b"});
    pBox->Named("bad")->nameFails = true;
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [bad a b c]]", tree.State());
}

TEST_F(TreeOrderTest, AnAnnouncementReadsEachNameAFewTimesAndOneAtomMoreOnlyAFewNames)
{
    FakeContainer* const pBox = MakeBigBox(5000);
    ProbeTree& tree = ShowTree();
    int nReads = 0;
    for (const AtomRef& pMember : pBox->members)
        nReads += std::exchange(pMember->nNameReads, 0);
    EXPECT_LE(nReads, 3 * 5000);

    tree.nLabels = 0;
    EXPECT_TRUE(tree.OnCreateAtom(pBox->Add("picture 5.png"), pBox));
    EXPECT_LE(tree.nLabels, 20);
    std::vector<std::string> labels;
    for (HTREEITEM h = tree.GetChildItem(tree.GetItem(pBox)); h; h = tree.GetNextSiblingItem(h))
        labels.push_back(tree.AtomOf(h)->name);
    EXPECT_EQ(5001u, labels.size());
    EXPECT_TRUE(std::is_sorted(labels.begin(), labels.end()));
}

} // namespace
