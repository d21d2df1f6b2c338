// Renaming in place, by the keys, in the list and in the tree.
#include "tests/views/InteractionTest.h"

#include <algorithm>

namespace
{

class LabelEditTest : public InteractionTest
{
protected:
    // Begins on the request of the editor, as its key does it.
    bool EditRow(int nRow)
    {
        desktop.Click(list->m_hWnd, RowPoint(nRow));
        editor.TakeLedger();
        return list->OnAtomRename(nullptr, nullptr) != FALSE;
    }
    bool EditItem(FakeAtom* pAtom)
    {
        desktop.Click(tree->m_hWnd, ItemPoint(pAtom));
        desktop.Run();
        editor.TakeLedger();
        return tree->OnAtomRename(nullptr, nullptr) != FALSE;
    }
    Ledger Enter(const char* pszName)
    {
        editor.TakeLedger();
        desktop.Type(pszName);
        desktop.Key(VK_RETURN);
        Ledger told = editor.TakeLedger();
        std::erase_if(
            told, [](const std::string& s) { return s.find("Atom") != std::string::npos && !s.starts_with("nobody"); });
        return told;
    }
};

TEST_F(LabelEditTest, ANewNameGoesToTheContainerAndComesBackAsANewAtom)
{
    ASSERT_TRUE(EditRow(0));
    EXPECT_EQ(Ledger({"box permits a", "list asks PreRenameAtom(a in box)"}), editor.TakeLedger());
    EXPECT_EQ(Ledger({"box finds x", "box permits a", "box renames a to x", "nobody tells OnCreateAtom(x in box)",
                      "nobody tells OnDeleteAtom(a in box)"}),
              Enter("x"));
    EXPECT_EQ("[(*b) c x]", list->State());

    world->permissions = APF_RENAME;
    ASSERT_TRUE(EditItem(pBag));
    EXPECT_EQ(Ledger({"tree asks PreRenameAtom(bag in world)"}), editor.TakeLedger());
    EXPECT_EQ(Ledger({"nobody tells OnCreateAtom(sack in world)", "nobody tells OnDeleteAtom(bag in world)"}),
              Enter("sack"));
    EXPECT_EQ("world! [*box! [b c x] sack]", tree->State());
}

TEST_F(LabelEditTest, NothingIsEditedThatMayNotBeRenamed)
{
    pBox->permissionsFor["a"] = APF_ACCEPT;
    EXPECT_FALSE(EditRow(0));
    EXPECT_EQ(Ledger({"box permits a"}), editor.TakeLedger()); // nobody is asked
    editor.Veto(&IAEStateHandler::PreRenameAtom);
    EXPECT_FALSE(EditRow(1));
    EXPECT_FALSE(EditItem(pBag)); // not permitted
    world->permissions = APF_RENAME;
    EXPECT_FALSE(EditItem(pBag));
    editor.Allow();
    list->SetRootAtom(pBox); // it has followed the tree

    // Whoever is asked takes the atom away.
    editor.onNotify = [&](AEStateOperation operation, IAtom* pAtom) {
        if (operation == &IAEStateHandler::PreRenameAtom && NameOf(pAtom) == "b") {
            editor.onNotify = nullptr;
            pBox->Remove(pBox->Named("b"));
            list->OnDeleteAtom(nullptr, pBox);
        }
    };
    EXPECT_FALSE(EditRow(1));
    EXPECT_EQ("[a c]", list->State());

    desktop.Click(list->m_hWnd, RowPoint(1));
    editor.Uninstall(); // without an editor the list does not rename, the tree does not ask
    EXPECT_FALSE(list->OnAtomRename(nullptr, nullptr));
    EXPECT_TRUE(tree->OnAtomRename(nullptr, nullptr));
    desktop.Key(VK_ESCAPE);
    editor.Install();
    list.reset();
    tree.reset();
    MakeViews(true);
    EXPECT_FALSE(EditItem(pBag));
}

// The focus leaves the field then, which takes the name as it does everywhere.
TEST_F(LabelEditTest, AViewThatGoesTakesItsFieldAlong)
{
    world->permissions = APF_RENAME;
    ASSERT_TRUE(EditRow(2));
    desktop.Type("x");
    list.reset();
    ASSERT_TRUE(EditItem(pBag));
    desktop.Type("x");
    tree.reset();
    EXPECT_EQ("a b x", Members(pBox));
    EXPECT_EQ("box x", Members(world.Get()));
}

TEST_F(LabelEditTest, ASlowSecondClickEditsAndTheViewMayGoMeanwhile)
{
    desktop.Click(list->m_hWnd, RowPoint(0));
    desktop.Advance(1000);
    CRect rect;
    list->GetItemRect(0, &rect, LVIR_LABEL);
    desktop.Click(list->m_hWnd, rect.CenterPoint());
    desktop.Advance(1000);
    EXPECT_NE(nullptr, list->GetEditControl());
    desktop.Type("x");
    pBox->onCall = [&](const std::string& strCall) {
        if (strCall == "renames a to x")
            list->DestroyWindow();
    };
    desktop.Key(VK_RETURN);
    pBox->onCall = nullptr;
    EXPECT_TRUE(pBox->Named("x"));
}

} // namespace
