#include "Editor/archive/ArchiveReader.h"
#include "Editor/services/LeftTransfers.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/clipboard/clipboard.h"
#include "fuzz/ArchiveCheck.h"
#include "tests/editor/ArchiveFixture.h"

#include <algorithm>
#include <chrono>
#include <sys/stat.h>

namespace
{

using editor::RecordKind;

std::string Record(RecordKind kind, const std::string& name, const std::string& content = {},
                   const std::string& origin = {})
{
    std::string bytes(editor::kRecordSize, '\0');
    editor::PutNumber(bytes.data(), static_cast<std::uint8_t>(kind));
    editor::PutNumber(bytes.data() + 2, static_cast<std::uint16_t>(name.size()));
    editor::PutNumber(bytes.data() + 4, static_cast<std::uint16_t>(origin.size()));
    editor::PutNumber(bytes.data() + 32, static_cast<std::uint32_t>(content.size()));
    return bytes + name + origin + content;
}

// A whole archive with a checksum that fits.
std::string Sealed(const std::string& records, std::uint32_t nObjects = 1)
{
    std::string bytes(editor::kHeaderSize, '\0');
    bytes.replace(0, 8, editor::kArchiveMark);
    editor::PutNumber(bytes.data() + 8, editor::kArchiveVersion);
    editor::PutNumber(bytes.data() + 12, nObjects);
    editor::PutNumber(bytes.data() + 16, static_cast<std::uint64_t>(records.size()));
    bytes += records;
    editor::PutNumber(bytes.data() + 24, editor::ChecksumOfArchive(bytes));
    return bytes;
}

TEST_F(ArchiveTest, EveryCutAndEveryChangedBitIsRefused)
{
    folder.Write("Ada/b.bmp", "0123456789abcdefghijklmnopqrstuvwxyz");
    folder.Write("a.bmp", "0123456789abcdefghijklmnopqrstuvwxyz");
    Open();
    const std::string whole = BytesOf(Copy("", {"Ada", "a.bmp"}).Get());
    ASSERT_EQ("[Ada a.bmp]", Read(whole));

    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ('!', Read(std::string_view(whole).substr(0, length))[0]) << "cut after " << length;
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string damaged = whole;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
        EXPECT_EQ('!', Read(damaged)[0]) << "bit " << bit;
    }
    EXPECT_EQ("! The objects cannot be read: the archive is not complete.", Read(whole + '\0'));
    std::string damaged = whole;
    damaged.back() = '!';
    EXPECT_EQ("! The objects cannot be read: the archive is damaged.", Read(damaged));
    EXPECT_EQ("! The objects cannot be read: not an archive of objects.", Read("GIF89a"));
}

TEST_F(ArchiveTest, NoNameOfAnArchiveLeadsOutOfTheFolder)
{
    ASSERT_EQ("[a]", Read(Sealed(Record(RecordKind::File, "a", "content", "Ada/a"))));
    ASSERT_EQ("[Ada]", Read(Sealed(Record(RecordKind::Folder, "Ada", Record(RecordKind::File, "a")))));

    const auto refuses = [&](const std::string& name) {
        const std::string record = Record(RecordKind::File, name);
        EXPECT_EQ("! The objects cannot be read: the archive holds what no archive holds.", Read(Sealed(record)))
            << name;
        EXPECT_EQ('!', Read(Sealed(Record(RecordKind::Folder, "Ada", record)))[0]) << name;
    };
    for (const char* pszPath : {"", ".", "..", "../a", "/etc/passwd", "a/b", "a/"})
        refuses(pszPath);
    refuses(std::string("a\0b", 3));
    refuses(std::string(256, 'a'));
    for (const char* const pszOrigin : {"/etc/passwd", "../a", "a/../../b", "a//b", "a/", "./a"})
        EXPECT_EQ('!', Read(Sealed(Record(RecordKind::Link, "a", {}, pszOrigin)))[0]) << pszOrigin;
}

TEST_F(ArchiveTest, RecordsThatDoNotFitTheirArchiveAreRefused)
{
    const std::string file = Record(RecordKind::File, "a", "content");
    std::string huge = file, deep = file;
    editor::PutNumber<std::uint32_t>(huge.data() + 32, 0xFFFFFFFF);
    for (int i = 0; i < editor::kDeepestFolder; ++i)
        deep = Record(RecordKind::Folder, "d", deep);
    const std::pair<std::string, std::uint32_t> refused[] = {
        {file, 2}, // one is missing
        {file + file, 1},
        {file + "x", 1},
        {file + "x", 0xFFFFFFFF},
        {Record(static_cast<RecordKind>(5), "a"), 1},
        {Record(RecordKind::DeadLink, "a"), 1}, // it must say something
        {Record(RecordKind::Link, "a", "content"), 1},
        {Record(RecordKind::Folder, "Ada", Record(RecordKind::Link, "a")), 1},
        {huge, 1},
        {deep, 1},
    };
    EXPECT_EQ("[]", Read(Sealed({}, 0)));
    for (const auto& [records, nObjects] : refused)
        EXPECT_EQ('!', Read(Sealed(records, nObjects))[0]) << records.substr(0, 60);
}

// What the fuzzer starts from and what it has found worth keeping. Whatever is accepted is pasted, too.
TEST_F(ArchiveTest, NoArchiveOfTheCollectionBreaksAPromiseOrLeavesTheFolder)
{
    folder.MakeFolder("library/Ada");
    Open(folder.At("library"));
    const auto pAda = Container("Ada");
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ARCHIVE_CORPUS)) {
        const std::string bytes = TempFolder::ReadFile(entry.path().string());
        ++nFiles;
        EXPECT_EQ("", fuzz::CheckArchive(bytes)) << entry.path();
        const auto pArchive = MakeArchive(bytes);
        if (Read(pArchive)[0] != '!')
            Paste(pArchive, "Ada");
    }
    EXPECT_LT(10, nFiles);
    EXPECT_LT(0u, pAda->GetCount());
    std::filesystem::remove_all(folder.At("library/Ada"));
    EXPECT_EQ("library/", folder.Everything());
}

TEST_F(ArchiveTest, WhatCannotBeCarriedIsNamedAndNothingIsCarriedWithoutConsent)
{
    folder.Make("a.bmp gone.bmp Ada/Poses/ Bo/ maze/z/");
    folder.Link("Bo/self", ".");
    mkfifo(folder.At("Ada/Poses/pipe").c_str(), 0600);
    for (char c = 'a'; c < 'z'; ++c) // two ways from each to the next
        for (const char* const pszWay : {"1", "2"}) {
            folder.MakeFolder(std::string("maze/") + c);
            folder.Link(std::string("maze/") + c + '/' + pszWay, std::string("../") + static_cast<char>(c + 1));
        }
    Open();

    EXPECT_EQ("Bo/self: a link to a folder that holds it", CopyError("", {"Bo"}));
    EXPECT_EQ("Ada/Poses/pipe: neither a file nor a folder (and 1 more)", CopyError("", {"Ada", "Bo"}));
    EXPECT_NE(std::string::npos, CopyError("", {"maze"}).find(": one of too many links to folders that are carried"));
    EXPECT_EQ("", CopyError("maze", {"w", "x", "y", "z"}));
    const auto pGone = Find("gone.bmp");
    folder.Remove("gone.bmp");
    Copy({pGone.Get()});
    EXPECT_EQ("gone.bmp: no such file or directory", editor.GetArchiveError());
}

TEST_F(ArchiveTest, AnObjectIsLentToACallbackWithAContextAndGivenToOneWithout)
{
    folder.Make("a.bmp b.bmp");
    Open();
    const auto pArchive = Copy("", {"a.bmp", "b.bmp"});
    CStubRef<IAtom> pKept;
    int nCalls = 0;
    EXPECT_FALSE(ReadEach(pArchive, [&](IAtom* pAtom) -> BOOL {
        pKept = CStubRef<IAtom>::Share(pAtom);
        return ++nCalls < 1;
    }));
    EXPECT_EQ(1, nCalls) << "nothing is read after a refusal";
    EXPECT_EQ("a.bmp", Name(pKept.Get()));
    const ARCHIVEATOMPROC take = [](IAtom* pAtom, void*) -> BOOL {
        CStubRef<IAtom>::Adopt(pAtom).Release();
        return TRUE;
    };
    EXPECT_TRUE(editor.ReadArchive(take, pArchive.Get(), nullptr));
}

TEST_F(ArchiveTest, OnlyTransferFilesThatNobodyHoldsAnyMoreAreRemoved)
{
    const TempFolder temp;
    setenv("TEMP", temp.Path().c_str(), 1);
    folder.Make("a.bmp");
    Open();
    const auto pArchive = Copy("", {"a.bmp"});
    const auto age = [](const std::string& path) {
        const auto now = std::filesystem::file_time_type::clock::now();
        std::filesystem::last_write_time(path, now - std::chrono::minutes(2));
        return path;
    };
    const auto make = [&] { return std::string(FileFromArchive(pArchive.Get()).GetString()); };
    const std::string left = age(make()), another = age(make());
    make();
    temp.Write("AEnotes", BytesOf(pArchive.Get()));
    std::filesystem::permissions(another, std::filesystem::perms(0644));
    void* const hPath = HGLOBALFromArchive(pArchive.Get());
    age(static_cast<const char*>(GlobalLock(hPath)));
    GlobalUnlock(hPath);
    auto* const pOwner = new CTransferFileOwner(hPath);
    editor::RemoveLeftTransfers();
    EXPECT_FALSE(std::filesystem::exists(left));
    EXPECT_EQ(4, std::ranges::count(temp.Everything(), 'A'));
    pOwner->Release();
    unsetenv("TEMP");
}

} // namespace
