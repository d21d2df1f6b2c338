// The editor driven by a text.
#include "Editor/script/Script.h"

#include "Editor/script/Words.h"
#include "tests/editor/EditorFixture.h"
#include "tests/support/FailingDisk.h"

#include <unistd.h>

namespace
{

class ScriptTest : public EditorTest
{
protected:
    ScriptTest()
    {
        folder.WriteBmp("Ada/a b.bmp");
        folder.WriteBmp("Ada/Poses/one.bmp");
        folder.MakeFolder("Bo");
        Open();
    }

    // What was printed, ended by the failure if there was one.
    Ledger Run(std::string_view text)
    {
        LedgerBook book;
        editor::Script script(App(), {[&](const std::string& line) { book.Write(line); },
                                      [&](const std::string& path) {
                                          book.Write("picture " + path);
                                          return path == "full.png" ? "no space left on device" : std::string();
                                      }});
        const std::string failure = script.Run("test.txt", text);
        if (!failure.empty())
            book.Write("! " + failure);
        return book.TakeLedger();
    }
};

TEST_F(ScriptTest, CommandsActLikeTheUsersOwn)
{
    EXPECT_EQ(Ledger({"a b.bmp", "Poses", "a b.bmp", "one.bmp", "picture out.png"}),
              Run("# the way in\nenter Ada\r\nlist\nselect \"a b.bmp\"   # one of them\ncopy\n"
                  "enter Poses\npaste\nlist\n\nscreenshot out.png"));
    EXPECT_EQ("/Ada/Poses/ | [(*a b.bmp) one.bmp] | 2 objects, 1 selected | a b.bmp: 8 x 8 pixels", Screen());

    EXPECT_EQ(Ledger(), Run("select *\ncut\nenter /Bo\npaste\nrename \"a b.bmp\" c.bmp\nselect\nselect one.bmp\n"));
    EXPECT_EQ("/Bo/ | [c.bmp (*one.bmp)] | 2 objects, 1 selected | one.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ(Ledger({"c.bmp", "new.bmp"}), Run("delete\nlist\nopen \"" + folder.Path() + "\"\n" +
                                                "enter Bo/c.bmp\nenter ..\nselect c.bmp\nrename c.bmp new.bmp\nlist"));
    const std::string noTrash = ".Trash-" + std::to_string(geteuid());
    folder.Link(noTrash, "/tmp");
    {
        const OwnFileSystem disk(folder.Path());
        EXPECT_EQ(Ledger({"! test.txt:2: delete: new.bmp: not removed, there is no trash on its file system"}),
                  Run("select new.bmp\ndelete"));
        EXPECT_EQ(Ledger(), Run("delete for good\nlist"));
    }
    folder.Remove(noTrash);
    folder.WriteBmp("Bo/new.bmp");
    folder.WriteBmp("Bo/NEW.bmp");
    EXPECT_EQ(Ledger({"NEW.bmp"}), Run("refresh\nselect new.bmp\ndelete\nlist"));
    EXPECT_EQ("Ada/ Ada/Poses/ Ada/a b.bmp Bo/ Bo/NEW.bmp", folder.Everything());
}

TEST_F(ScriptTest, TheFirstThatFailsEndsItWithFileLineAndReason)
{
    folder.MakeFolder("Bo/*");
    const std::pair<const char*, const char*> failures[] = {
        {"\n\nfly\nlist", "test.txt:3: fly: unknown command"},
        {"select \"Ada", "test.txt:1: a quote is not closed"},
        {"rename Ada", "test.txt:1: rename: something is missing behind it"},
        {"copy Ada", "test.txt:1: copy: there is too much behind it"},
        {"delete good", "test.txt:1: delete: nothing or \"for good\" stands behind it"},
        {"enter Ada/none", "test.txt:1: enter: none: not in Ada"},
        {"enter /..", "test.txt:1: enter: nothing is above the library"},
        {"enter /\ncopy", "test.txt:2: copy: nothing is selected"},
        {"rename Ada Bo", "test.txt:1: rename: Ada: there is a \"Bo\" already"},
        {"select Bo Zoe", "test.txt:1: select: Zoe: not in "},
        {"enter Bo\nselect *", "test.txt:2: select: *: stands for all, and for one of them"},
        {"screenshot full.png", "test.txt:1: screenshot: no space left on device"},
    };
    for (const auto& [pszText, pszFailure] : failures) {
        const Ledger told = Run(pszText);
        EXPECT_EQ(0u, told.back().find(std::string("! ") + pszFailure)) << told.back();
    }
    EXPECT_EQ("Ada/ Ada/Poses/ Ada/Poses/one.bmp Ada/a b.bmp Bo/ Bo/*/", folder.Everything());
}

TEST_F(ScriptTest, WhoeverWantsAnEndNeedNotWaitForAPicture)
{
    reader.TakeReads();
    folder.WriteBmp("Bo/large.bmp");
    reader.Hold();
    bool bReading = false;
    editor::Script script(App(), {.print = [](const std::string&) {},
                                  .takeScreenshot = {},
                                  .isToEnd = [&] { return bReading = bReading || !reader.TakeReads().empty(); }});
    EXPECT_EQ("test.txt:2: interrupted", script.Run("test.txt", "enter Bo\nlist"));
}

TEST(ScriptWordsTest, QuotesHoldBlanksQuotesAndBackslashes)
{
    std::vector<std::string> words;
    std::string trouble;
    EXPECT_TRUE(editor::SplitWords(R"( a  "b c""d"  "" "e \"f\" \\ \g" h#i # j "k)", words, trouble));
    EXPECT_EQ(Ledger({"a", "b cd", "", R"(e "f" \ \g)", "h#i"}), words);
    EXPECT_FALSE(editor::SplitWords("a \"b\\\"", words, trouble));
}

} // namespace
