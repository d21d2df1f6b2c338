// The order of a container's members, and what it costs.
#include "Toolkit/base/Text.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <random>

namespace
{

using TreeOrderTest = TreeTest;

std::string LabelOf(const FakeAtom* pAtom)
{
    return pAtom->displayName.value_or(pAtom->name) + (pAtom->isModified ? " *" : "");
}

// Step by step: each member before the first whose label is greater; then all, stably, by name.
std::string ExpectedLabels(const FakeContainer* pBox)
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
    std::string strLabels;
    for (const FakeAtom* pAtom : order)
        strLabels += (strLabels.empty() ? "" : ", ") + LabelOf(pAtom);
    return strLabels;
}

TEST_F(TreeOrderTest, MembersStandByTheirNamesAndEqualOnesByTheirLabels)
{
    std::mt19937 random(7);
    FakeContainer* const pBox = MakeBox({});
    const char* const names[] = {"a", "A", "b", "\xC3\xA4", "\xC3\x84", "ab", "B", "", "\xFF"};
    for (int i = 0; i < 60; ++i) {
        FakeAtom* const pAtom = pBox->Add(names[random() % std::size(names)]);
        if (random() % 2)
            pAtom->displayName = "shown " + std::to_string(random() % 9);
        pAtom->isModified = random() % 3 == 0;
    }
    MakeBox("later", {"a", "b"})->Named("a")->displayName = "y";
    ProbeTree& tree = ShowTree();
    EXPECT_EQ(ExpectedLabels(pBox), tree.Labels(pBox));

    auto* const pLater = static_cast<FakeContainer*>(world->Named("later"));
    tree.OnCreateAtom(pLater->Add("c"), pLater); // before the first greater label, though behind it by name
    EXPECT_EQ("c, y, b", tree.Labels(pLater));
}

TEST_F(TreeOrderTest, ImageLinksStandByTheirPositionsAndElseNamesDecide)
{
    FakeContainer* const pPhase = MakeBox("phase", {"five", "two", "nine"});
    pPhase->isPhase = true;
    for (const auto& [pszName, nPosition] : {std::pair("five", 5), std::pair("two", 2), std::pair("nine", 9)}) {
        pPhase->Named(pszName)->isLink = true;
        pPhase->Named(pszName)->position = nPosition;
    }
    MakeBox("mixed", {"beta", "Alpha", "link"})->Named("link")->isLink = true;
    MakeBox("unread", {"c", "bad", "a", "b"})->Named("bad")->nameFails = true;
    EXPECT_EQ("world [mixed [Alpha beta link] phase [two five nine] unread [bad a b c]]", ShowTree().State());
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
    EXPECT_LE(nReads, 3 * 3000);

    tree.nLabels = 0;
    tree.OnCreateAtom(pBox->Add("picture 5"), pBox);
    EXPECT_LE(tree.nLabels, 20);
    EXPECT_TRUE(ExpectedLabels(pBox) == tree.Labels(pBox));

    FakeAtom* const pMiddle = pBox->members.front().Get();
    pMiddle->displayName = "z"; // greater than all that stand behind it
    tree.OnChangeAtom(pMiddle, pBox);
    FakeAtom* const pNew = pBox->Add("picture 9999999");
    tree.OnCreateAtom(pNew, pBox);
    EXPECT_EQ(tree.GetItem(pMiddle), tree.GetNextSiblingItem(tree.GetItem(pNew)));
}

} // namespace
