// The order of a container's members, and what it costs.
#include "Toolkit/base/Text.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <random>

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

} // namespace
