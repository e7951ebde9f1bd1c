#include "schedule/exclusion_lists.h"

#include <gtest/gtest.h>

#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

class ExclusionLists : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  bool Create() { return CreateDefaultExcludeFiles(ports(), state); }
  static std::string Path(std::string_view name) {
    return std::string(testing::kUser) + std::string(name);
  }
  std::string Content(std::string_view name) { return machine.files().Content(Path(name)); }

  const std::string files_ =
      "pagefile.sys/1\r\nntuser.dat/1\r\nhiberfil.sys/1\r\n~outlook.pst.tmp/1\r\n";
  const std::string folders_ = "System Volume Information/1\r\nRECYCLER/1\r\n$Recycle.Bin/1\r\n";
};

TEST_F(ExclusionLists, ANewUserGetsAllOfThem) {
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludeFile.txt"), files_);
  EXPECT_EQ(Content("atbkupExcludeFolder.txt"), folders_);
  EXPECT_TRUE(machine.files().Has(Path("atbkupExcludeFilePath.txt")));
  EXPECT_EQ(Content("atbkupExcludeFilePath.txt"), "");
}

TEST_F(ExclusionLists, TheTemporaryFoldersOfTheUserAreListed) {
  machine.shell().SetFolder(platform::KnownFolder::kTemporary, "C:\\Temp");
  machine.shell().SetFolder(platform::KnownFolder::kInternetCache, "C:\\Cache");
  machine.shell().SetFolder(platform::KnownFolder::kCookies, "C:\\Cookies");
  machine.shell().SetFolder(platform::KnownFolder::kCommonFavourites, "C:\\Favs");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludelist.txt"),
            "C:\\Temp\\*/1\r\nC:\\Cache\\*/1\r\nC:\\Cookies\\*/1\r\nC:\\Favs\\*/1\r\n");
}

TEST_F(ExclusionLists, AFolderThatTheSystemDoesNotHaveIsLeftOut) {
  machine.gate().FailAll("shell.FindFolder");
  EXPECT_TRUE(Create());
  EXPECT_TRUE(machine.files().Has(Path("atbkupExcludelist.txt")));
  EXPECT_EQ(Content("atbkupExcludelist.txt"), "");
}

TEST_F(ExclusionLists, OldListsAreMadeAnew) {
  machine.files().Put(Path("atbkupExcludeFile.txt"), "mine/1\r\n");
  machine.files().Put(Path("atbkupExcludeFolder.txt"), "mine/1\r\n");
  machine.files().Put(Path("atbkupExcludelist.txt"), "mine/1\r\n");
  machine.files().Put(Path("UserExcludeFolder.txt"), "mine/1\r\n");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludeFile.txt"), files_);
  EXPECT_EQ(Content("atbkupExcludeFolder.txt"), folders_);
  EXPECT_EQ(Content("atbkupExcludelist.txt").find("mine"), std::string::npos);
  EXPECT_FALSE(machine.files().Has(Path("UserExcludeFolder.txt")));
}

TEST_F(ExclusionLists, ThePathsOfTheUserAreKept) {
  machine.files().Put(Path("atbkupExcludeFilePath.txt"), "C:\\x.txt/1\r\n");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludeFilePath.txt"), "C:\\x.txt/1\r\n");
}

TEST_F(ExclusionLists, AListThatCannotBeDeletedKeepsItsEntriesAndGetsThoseThatItLacks) {
  machine.files().Put(Path("atbkupExcludeFile.txt"),
                      "mine/1\r\n~outlook.pst.tmp/1\r\nntuser.dat\r\nodd");
  machine.gate().FailAll("files.Remove");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludeFile.txt"),
            "mine/1\r\n~outlook.pst.tmp/1\r\nntuser.dat\r\nodd\r\npagefile.sys/1\r\n"
            "hiberfil.sys/1\r\n");
}

TEST_F(ExclusionLists, AListThatIsThereIsAskedForTheLastNameFirst) {
  machine.files().Put(Path("atbkupExcludeFile.txt"), "mine/1\r\n");
  machine.files().Put(Path("atbkupExcludeFolder.txt"), "RECYCLER/1\r\n");
  machine.gate().FailAll("files.Remove");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Content("atbkupExcludeFile.txt"),
            "mine/1\r\n~outlook.pst.tmp/1\r\npagefile.sys/1\r\nntuser.dat/1\r\n"
            "hiberfil.sys/1\r\n");
  EXPECT_EQ(Content("atbkupExcludeFolder.txt"),
            "RECYCLER/1\r\n$Recycle.Bin/1\r\nSystem Volume Information/1\r\n");
}

TEST_F(ExclusionLists, AListThatCannotBeWrittenEndsTheWork) {
  machine.files().Put(Path("atbkupExcludeFile.txt"), "mine/1\r\n");
  machine.LockFile(Path("atbkupExcludeFile.txt"));
  EXPECT_FALSE(Create());
  EXPECT_EQ(Content("atbkupExcludeFile.txt"), "mine/1\r\n");
  EXPECT_FALSE(machine.files().Has(Path("atbkupExcludeFolder.txt")));
}

}  // namespace
}  // namespace schedule
