// The kit as hosts use it: objects that travel as bytes, what containers refuse, what a host has ready.
#include "HostKit/HostKit.h"
#include "HostKit/memory/LargeBlock.h"
#include "Toolkit/base/Checksum.h"
#include "Views/clipboard/clipboard.h"
#include "Views/host/inside/WhatIsMissing.h"
#include "Views/list/list.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/TempFolder.h"

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class Word : public hostkit::CAtom
{
public:
    explicit Word(std::string name = {}, std::string says = {}) : CAtom(std::move(name)), meaning(std::move(says)) {}
    std::string meaning;

protected:
    std::string Save() const override { return meaning; }
    bool Load(std::string_view bytes) override
    {
        meaning = bytes;
        return meaning != "none";
    }
};

// "Book[Chapter[a=1] b=2]"
std::string Describe(hostkit::CAtom& atom)
{
    if (const auto* const pWord = dynamic_cast<Word*>(&atom))
        return pWord->Name() + '=' + pWord->meaning;
    std::string members;
    for (const auto& pMember : dynamic_cast<hostkit::CContainer&>(atom).Members())
        members += (members.empty() ? "" : " ") + Describe(*pMember.Get());
    return atom.Name() + '[' + members + ']';
}

class KitTest : public DesktopTest
{
protected:
    KitTest()
    {
        hostkit::RegisterAtom<Word>("Word");
        pChapter->Add(hostkit::Make<Word>("a", "1"));
        pBook->Add(hostkit::Make<Word>("b", "2"));
        host.GetEditor().AddTop(pBook.Get());
    }
    ~KitTest() override
    {
        host.GetEditor().ForgetAtoms();
        EXPECT_EQ(0, host.GetEditor().CountReferences());
    }

    // The bytes of the whole chapter, as a copy of it has them.
    std::string Pack()
    {
        frame.Create("", CSize(300, 200));
        list.Create(frame.RightSide());
        frame.ShowWindow(SW_SHOW);
        frame.Open(pBook.Get());
        host.GetEditor().NotifyHandlers(nullptr, &IAEStateHandler::OnAtomSelected, pChapter, pBook.Get(), 0);
        list.SetFocus();
        const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
        EXPECT_TRUE(host.GetEditor().WriteActiveObjects(pArchive.Get())) << host.GetEditor().GetArchiveError();
        return {static_cast<const char*>(pArchive->GetData()), pArchive->GetLength()};
    }
    static CStubRef<IArchive> ArchiveOf(const std::string& bytes)
    {
        auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
        pArchive->Seek(static_cast<DWORD>(bytes.size()), 0);
        pArchive->SetEnd();
        std::memcpy(pArchive->GetData(), bytes.data(), bytes.size());
        return pArchive;
    }
    // What they are read as, "no: reason" when they are refused.
    std::string Unpack(const std::string& bytes)
    {
        const auto pArchive = ArchiveOf(bytes);
        std::string read;
        const auto note = [](IAtom* pAtom, void* pRead) -> BOOL {
            *static_cast<std::string*>(pRead) += Describe(*hostkit::CAtom::Of(pAtom));
            return TRUE;
        };
        const BOOL bRead = host.GetEditor().ReadArchive(note, pArchive.Get(), &read);
        return bRead ? read : read + "no: " + host.GetEditor().GetArchiveError();
    }
    std::string Error() { return hostkit::ErrorOf(pBook.Get(), "none"); }

    hostkit::Host host{"Kit"};
    const CStubRef<hostkit::CContainer> pBook = hostkit::Make<hostkit::CContainer>("Book");
    hostkit::CContainer* const pChapter = pBook->Add(hostkit::Make<hostkit::CContainer>("Chapter"));
    hostkit::CFrame frame{host.GetEditor()};
    CIconList list;
};

TEST_F(KitTest, WhatIsCutShortDamagedOrUnknownIsRefusedAsAWhole)
{
    const std::string bytes = Pack();
    ASSERT_EQ("Chapter[a=1]", Unpack(bytes));
    for (std::size_t n = 0; n < bytes.size(); ++n) {
        EXPECT_EQ(0u, Unpack(bytes.substr(0, n)).find("no: ")) << "cut at " << n;
        std::string damaged = bytes;
        damaged[n] = static_cast<char>(damaged[n] ^ 0x40);
        EXPECT_EQ(0u, Unpack(damaged).find("no: ")) << "damaged at " << n;
    }

    // Sealed again, as a program that means ill would: lengths, classes and contents are looked at all the same.
    const auto with = [&](std::size_t at, const std::string& text) {
        std::string changed = bytes;
        changed.replace(at, text.size(), text);
        const std::uint64_t sum =
            toolkit::Checksum(std::string_view(changed).substr(0, 24), toolkit::Checksum(changed.substr(32)));
        std::memcpy(changed.data() + 24, &sum, sizeof sum);
        return Unpack(changed);
    };
    for (std::size_t at = 32; at < bytes.size(); ++at)
        with(at, "\xff");
    EXPECT_EQ("no: a: this program does not know such objects (Wolf)", with(bytes.find("Word"), "Wolf"));
    EXPECT_EQ("Chapter[z=1]", with(bytes.find("a1"), "z"));
}

TEST_F(KitTest, AContainerTakesNoNameTwiceNoStrangerAndNotItself)
{
    CStubRef<IAtom> pAtom;
    const auto rename = [&](hostkit::CAtom* pMember, const char* pszName) {
        return pBook->RenameAtom(pMember, pszName, pAtom.Receive(), IID_IAtom);
    };
    hostkit::CAtom* const pWord = pBook->Members().back().Get();
    EXPECT_FALSE(rename(pWord, "CHAPTER"));
    EXPECT_EQ("\"Chapter\" is there already", Error());
    EXPECT_FALSE(rename(pWord, " ") || rename(pWord, "two\nlines"));
    EXPECT_TRUE(rename(pWord, "B")) << "its own name in another case";
    EXPECT_EQ("none", Error());
    EXPECT_TRUE(rename(pChapter, "First"));
    EXPECT_EQ("Book[B=2 First[a=1]]", Describe(*pBook.Get()));
    EXPECT_EQ(nullptr, pBook->Add(pBook)) << "not into itself";

    CString name = "first";
    EXPECT_TRUE(pBook->ValidateName(name, 0));
    EXPECT_STREQ("first (2)", name);
}

TEST_F(KitTest, ACopyOfAContainerIsNoMoveIntoIt)
{
    const auto pArchive = ArchiveOf(Pack());
    EXPECT_EQ(PASTE_COPY, CheckPaste(pArchive.Get(), pChapter, TRUE));
    EXPECT_EQ(PASTE_ANY, CheckPaste(pArchive.Get(), hostkit::Make<hostkit::CContainer>("Other").Get(), TRUE));
    EXPECT_TRUE(PasteObjects(pArchive.Get(), pChapter, FALSE));
    EXPECT_EQ("Book[Chapter[a=1 Chapter[a=1]] b=2]", Describe(*pBook.Get()));
}

TEST_F(KitTest, TheRenamedObjectStaysSelectedAndTheRenamedContainerOpen)
{
    Pack();
    CStubRef<hostkit::CContainer> pHeld = CStubRef<hostkit::CContainer>::Share(pChapter);
    frame.Open(pChapter);
    EXPECT_TRUE(RenameObject(pChapter, nullptr, "First"));
    desktop.Run();
    EXPECT_EQ("First", hostkit::NameOf(frame.GetOpened()));
    EXPECT_EQ(1, list.GetItemCount());

    frame.Open(pBook.Get());
    desktop.Run();
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    desktop.Key(VK_F2);
    desktop.Type("z");
    desktop.Key(VK_RETURN);
    desktop.Run();
    const hostkit::ActiveMembers active = hostkit::GetActiveMembers(host.GetEditor());
    ASSERT_EQ(1u, active.size());
    EXPECT_EQ("z", hostkit::NameOf(active[0].pAtom.Get()));
}

TEST_F(KitTest, AHostHasAllThatViewsAskFor)
{
    EXPECT_EQ("", views::WhatIsMissing());
    host.GetResources().Leave();
    EXPECT_NE("", views::WhatIsMissing());
}

TEST(LargeBlockTest, AFileIsTakenAsItIsOnlyWhileItsOwnerHoldsIt)
{
    constexpr std::size_t kSize = 20 << 20;
    const TempFolder folder;
    const std::string path = folder.At("block");
    const int fd = open(path.c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(0, ftruncate(fd, kSize));
    ASSERT_EQ(1, pwrite(fd, "x", 1, kSize - 1));
    hostkit::LargeBlock block;
    EXPECT_EQ(0u, block.TakeFile(path.c_str()));

    struct flock lock = {};
    lock.l_type = F_RDLCK;
    ASSERT_EQ(0, fcntl(fd, F_OFD_SETLK, &lock));
    EXPECT_EQ(kSize, block.TakeFile(path.c_str()));
    EXPECT_EQ(std::byte{'x'}, block.Get()[kSize - 1]);
    block.Get()[0] = std::byte{'y'};
    char first = '\0';
    EXPECT_EQ(1, pread(fd, &first, 1, 0));
    EXPECT_EQ('\0', first) << "it stays its owner's";
    fchmod(fd, 0644);
    EXPECT_EQ(0u, block.TakeFile(path.c_str()));
    close(fd);
}

TEST(KitNameTest, ABufferThatIsTooSmallIsToldHowLargeItMustBe)
{
    char buffer[4] = "###";
    DWORD length = 3;
    EXPECT_FALSE(hostkit::GiveName("abc", buffer, &length));
    EXPECT_EQ(4u, length);
    EXPECT_STREQ("###", buffer);
    EXPECT_TRUE(hostkit::GiveName("abc", buffer, &length));
    EXPECT_STREQ("abc", buffer);
    EXPECT_FALSE(hostkit::GiveName("abc", buffer, nullptr));
}

} // namespace
