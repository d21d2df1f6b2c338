#include "Editor/disk/Trash.h"

#include "tests/support/FailingDisk.h"
#include "tests/support/TempFolder.h"

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class TrashTest : public testing::Test
{
protected:
    std::string Remove(const std::string& name) { return editor::RemoveFromDisk(folder.At(name), place); }

    TrashHome trash;
    TempFolder folder;
    editor::TrashPlace place; // of what was removed last
};

TEST_F(TrashTest, WhatIsRemovedLiesInTheTrashWithItsFormerPlaceAndTime)
{
    folder.Write("Ada \xC3\xAB/a%.bmp", "bytes");

    EXPECT_EQ("", Remove("Ada \xC3\xAB/a%.bmp"));
    EXPECT_EQ("Ada \xC3\xAB/", folder.Everything());
    EXPECT_EQ("bytes", trash.folder.Read("Trash/files/a%.bmp"));
    const std::string info = trash.folder.Read("Trash/info/a%.bmp.trashinfo");
    int year, month, day, hour, minute, second;
    const std::string start = "[Trash Info]\nPath=" + folder.Path() + "/Ada%20%C3%AB/a%25.bmp\nDeletionDate=";
    ASSERT_TRUE(info.starts_with(start)) << info;
    ASSERT_EQ(6, std::sscanf(info.c_str() + start.size(), "%4d-%2d-%2dT%2d:%2d:%2d\n", &year, &month, &day, &hour,
                             &minute, &second))
        << info;
    EXPECT_EQ(std::string("2000-01-01T00:00:00\n").size(), info.size() - start.size()) << info;
    struct stat status;
    stat(trash.folder.At("Trash").c_str(), &status);
    EXPECT_EQ(0700u, status.st_mode & 07777);
}

TEST_F(TrashTest, NamesThatAreInTheTrashAlreadyAreCountedUp)
{
    const std::string longName = std::string(251, 'w') + ".bmp";
    for (int i = 0; i < 2; ++i) {
        folder.Write("walk.bmp", std::to_string(i));
        folder.Write("Ada/a.bmp", std::to_string(i));
        for (const char* pszName : {"walk.bmp", "Ada"})
            EXPECT_EQ("", Remove(pszName));
    }
    folder.Link("link.bmp", "nowhere");
    folder.Write(longName, "long");
    for (const std::string& name : {std::string("link.bmp"), longName, std::string("was never there")})
        EXPECT_EQ("", Remove(name));

    EXPECT_EQ("", folder.Everything());
    EXPECT_EQ("0", trash.folder.Read("Trash/files/walk.bmp"));
    EXPECT_EQ("1", trash.folder.Read("Trash/files/walk (2).bmp"));
    EXPECT_EQ("1", trash.folder.Read("Trash/files/Ada (2)/a.bmp"));
    EXPECT_TRUE(std::filesystem::is_symlink(trash.folder.At("Trash/files/link.bmp"))) << "the link itself";
    EXPECT_EQ(6, std::distance(std::filesystem::directory_iterator(trash.folder.At("Trash/info")), {}));
}

TEST_F(TrashTest, WhatLiesBehindALinkGoesToTheTrashOfItsOwnFileSystem)
{
    const TempFolder elsewhere;
    const OwnFileSystem disk(elsewhere.Path());
    elsewhere.Link("link", folder.Path());
    folder.Write("a.bmp", "bytes");

    EXPECT_EQ("", editor::RemoveFromDisk(elsewhere.At("link/a.bmp"), place));
    EXPECT_EQ("bytes", trash.folder.Read("Trash/files/a.bmp"));
    EXPECT_NE(std::string::npos, trash.folder.Read("Trash/info/a.bmp.trashinfo").find(folder.Path() + "/a.bmp\n"));
}

TEST_F(TrashTest, AwayFromTheUsersOwnTrashTheFileSystemsServesAndWithoutBothNothingIsLost)
{
    const OwnFileSystem disk(folder.Path());
    const std::string top = ".Trash-" + std::to_string(geteuid());
    folder.Write("Ada/a.bmp", "bytes");
    folder.Write("b.bmp", "other bytes");
    folder.Link(top, "/tmp");
    EXPECT_EQ("not removed, there is no trash on its file system", Remove("Ada")) << "a link is no trash";
    EXPECT_EQ("bytes", folder.Read("Ada/a.bmp"));
    {
        const editor::PermanentRemoval allowed;
        EXPECT_EQ("", Remove("Ada"));
        EXPECT_EQ(top + " b.bmp", folder.Everything());
        trash.Point(folder.At("b.bmp"));
        EXPECT_EQ("not removed, the trash cannot be made: not a directory", Remove("b.bmp")) << "missed: none is lost";
    }
    trash.Point(trash.folder.Path());
    folder.Remove(top);

    EXPECT_EQ("", Remove("b.bmp"));
    EXPECT_EQ("other bytes", folder.Read(top + "/files/b.bmp"));
    EXPECT_NE(std::string::npos, folder.Read(top + "/info/b.bmp.trashinfo").find("\nPath=b.bmp\n"));
}

} // namespace
