// Renaming in place, by the keys, in the list and in the tree.
#include "tests/views/InteractionTest.h"

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
} // namespace
