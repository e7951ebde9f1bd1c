#include "schedule/default_files.h"

#include <gtest/gtest.h>

#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

constexpr std::string_view kIni = "C:\\Sorvane\\SorvaneE\\SimpleAutoPath.ini";
constexpr std::string_view kList = "C:\\Sorvane\\SorvaneE\\atbkupfolderlist.txt";
constexpr std::string_view kLibrary = "C:\\Sorvane\\GetMailPaths.dll";

class DefaultFilesTest : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  // A function of the library that writes `path` under `key` into the ini that it is told of.
  void PutFinder(std::string_view function, std::string_view key, std::string_view path) {
    machine.libraries().PutTextFunction(
        kLibrary, function, [this, key = std::string(key), path = std::string(path)](auto ini) {
          machine.files().PutIni(ini, "AUTOFILEPATHS", key, path);
        });
  }
  std::string Value(std::string_view key) { return set_.ReadMyDocPathDefaultFile(key); }

  DefaultFiles set_{ports(), state};
};

TEST_F(DefaultFilesTest, TheFoldersAndTheirFunctions) {
  const std::string_view rows[][2] = {
      {"OutlookExpPath", "GetAutoOutlkExpPath"},
      {"MSOutlkPath", "GetAutoMSOutlkPath"},
      {"YahooPath", "GetYahooPath"},
      {"MSNPath", "GetMSNPath"},
      {"DesktopPath", "GetDesktopPath"},
      {"MyDocumentsPath", "GetMyDocumentsPath"},
      {"MyMusicPath", "GetMyMusicPath"},
      {"MyPicturesPath", "GetMyPicturesPath"},
      {"MyVideosPath", "GetMyVideosPath"},
      {"MyFavouritesPath", "GetMyFavouritesPath"},
      {"OutlkExpAddrBookPath", "GetOutlkExpAddrBookPath"},
      {"MozillaPath", "GetMozillaPath"},
  };
  ASSERT_EQ(DefaultFolders().size(), std::size(rows));
  for (std::size_t at = 0; at < std::size(rows); ++at) {
    EXPECT_EQ(DefaultFolders()[at].key, rows[at][0]);
    EXPECT_EQ(DefaultFolders()[at].function, rows[at][1]);
  }
}

TEST_F(DefaultFilesTest, EveryFunctionOfTheLibraryIsAskedForItsFolder) {
  for (const DefaultFolder& folder : DefaultFolders()) {
    PutFinder(folder.function, folder.key, "D:\\" + std::string(folder.key) + "\\");
  }
  set_.Fill();
  for (const DefaultFolder& folder : DefaultFolders()) {
    EXPECT_EQ(Value(folder.key), "D:\\" + std::string(folder.key) + "\\");
  }
}

TEST_F(DefaultFilesTest, AFolderThatTheIniHasIsNotLookedFor) {
  machine.files().PutIni(kIni, "AUTOFILEPATHS", "MozillaPath", "D:\\Mine");
  PutFinder("GetMozillaPath", "MozillaPath", "D:\\Other\\");
  set_.Fill();
  EXPECT_EQ(Value("MozillaPath"), "D:\\Mine");
  EXPECT_EQ(machine.journal().Count("library", "GetMozillaPath"), 0u);
}

TEST_F(DefaultFilesTest, WithoutTheLibraryTheSystemGivesTheFoldersThatItKnows) {
  machine.shell().SetFolder(platform::KnownFolder::kDesktop, "C:\\Users\\ann\\Desktop");
  set_.Fill();
  EXPECT_EQ(Value("DesktopPath"), "C:\\Users\\ann\\Desktop\\");
  for (const std::string_view key :
       {"MyDocumentsPath", "MyMusicPath", "MyPicturesPath", "MyVideosPath", "MyFavouritesPath"}) {
    EXPECT_NE(Value(key), "") << key;
  }
  for (const std::string_view key : {"OutlookExpPath", "MSOutlkPath", "YahooPath", "MSNPath",
                                     "OutlkExpAddrBookPath", "MozillaPath"}) {
    EXPECT_EQ(Value(key), "") << key;
  }
}

TEST_F(DefaultFilesTest, AKeyThatTheLibraryLeavesEmptyComesFromTheSystem) {
  machine.libraries().PutTextFunction(kLibrary, "GetDesktopPath", [](auto) {});
  machine.shell().SetFolder(platform::KnownFolder::kDesktop, "C:\\Users\\ann\\Desktop");
  set_.Fill();
  EXPECT_EQ(Value("DesktopPath"), "C:\\Users\\ann\\Desktop\\");
}

TEST_F(DefaultFilesTest, WhatNobodyKnowsStaysOut) {
  machine.shell().SetFolder(platform::KnownFolder::kMusic, "");
  set_.Fill();
  EXPECT_EQ(Value("MyMusicPath"), "");
  EXPECT_TRUE(set_.WriteFolderList());
  EXPECT_EQ(machine.files().Content(kList).find("Music"), std::string::npos);
}

TEST_F(DefaultFilesTest, TheListHoldsTheDefaultFoldersEachClosed) {
  machine.files().PutIni(kIni, {{"AUTOFILEPATHS", "MyDocumentsPath", "D:\\Docs"},
                                {"AUTOFILEPATHS", "DesktopPath", "D:\\Desk\\"},
                                {"AUTOFILEPATHS", "MyMusicPath", "D:\\Music"},
                                {"AUTOFILEPATHS", "MyVideosPath", "D:\\Videos"},
                                {"AUTOFILEPATHS", "MyPicturesPath", "D:\\Pics"}});
  EXPECT_TRUE(set_.WriteFolderList());
  EXPECT_EQ(machine.files().Content(kList),
            "D:\\Docs\\\r\nD:\\Desk\\\r\nD:\\Music\\\r\nD:\\Videos\\\r\nD:\\Pics\\\r\n");
  state.ProductNumber = 1;
  EXPECT_TRUE(set_.WriteFolderList());
  EXPECT_EQ(machine.files().Content(kList), "D:\\Docs\\\r\nD:\\Desk\\\r\n");
}

TEST_F(DefaultFilesTest, ALockedListKeepsItsLines) {
  machine.files().Put(kList, "D:\\Mine\\\r\n");
  machine.LockFile(kList);
  EXPECT_FALSE(set_.WriteFolderList());
  EXPECT_EQ(machine.files().Content(kList), "D:\\Mine\\\r\n");
}

}  // namespace
}  // namespace schedule
