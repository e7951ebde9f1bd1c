// Folders and what is in them.
#include "tests/platform/contract_test.h"

namespace {

class FoldersContract : public ContractTest {
 protected:
  platform::Files& files() { return ports().files; }

  std::vector<std::string> Names(const std::string& folder, const std::string& pattern) {
    std::vector<std::string> names;
    for (const auto& entry : files().List(folder, pattern)) names.push_back(entry.name);
    return names;
  }

  using NameList = std::vector<std::string>;
};

TEST_F(FoldersContract, MakesOneFolderOnce) {
  EXPECT_TRUE(files().MakeFolder(In("New")));
  EXPECT_TRUE(files().FolderExists(In("NEW")));
  EXPECT_FALSE(files().MakeFolder(In("New")));
  EXPECT_FALSE(files().MakeFolder(In("Missing\\New")));
}

TEST_F(FoldersContract, MakesNoFolderInPlaceOfAFile) {
  machine_->PutFile(In("Taken"), "x");
  EXPECT_FALSE(files().MakeFolder(In("Taken")));
  EXPECT_EQ(machine_->FileBytes(In("Taken")), "x");
}

TEST_F(FoldersContract, RemovesAFolderWithAllThatIsInIt) {
  ASSERT_TRUE(files().MakeFolder(In("A")));
  ASSERT_TRUE(files().MakeFolder(In("A\\B")));
  machine_->PutFile(In("A\\one.txt"), "1");
  machine_->PutFile(In("A\\B\\two.txt"), "2");
  EXPECT_TRUE(files().RemoveFolder(In("A")));
  EXPECT_FALSE(files().FolderExists(In("A")));
  EXPECT_FALSE(files().RemoveFolder(In("A")));
}

TEST_F(FoldersContract, LeavesWhatIsLockedAndRemovesTheRest) {
  ASSERT_TRUE(files().MakeFolder(In("A")));
  machine_->PutFile(In("A\\free.txt"), "1");
  machine_->PutFile(In("A\\kept.txt"), "2");
  machine_->LockFile(In("A\\kept.txt"));
  EXPECT_FALSE(files().RemoveFolder(In("A")));
  EXPECT_EQ(Names(In("A"), "*"), NameList{"kept.txt"});
  machine_->UnlockFile(In("A\\kept.txt"));
  EXPECT_TRUE(files().RemoveFolder(In("A")));
}

TEST_F(FoldersContract, LeavesWhatIsReadOnly) {
  ASSERT_TRUE(files().MakeFolder(In("A")));
  machine_->PutFile(In("A\\kept.txt"), "2");
  machine_->SetReadOnly(In("A\\kept.txt"), true);
  EXPECT_FALSE(files().RemoveFolder(In("A")));
  EXPECT_EQ(machine_->FileBytes(In("A\\kept.txt")), "2");
}

TEST_F(FoldersContract, RemovesNoFileAsAFolder) {
  machine_->PutFile(In("File.txt"), "x");
  EXPECT_FALSE(files().RemoveFolder(In("File.txt")));
  EXPECT_TRUE(files().Exists(In("File.txt")));
}

TEST_F(FoldersContract, ListsByNameWithoutRegardToCase) {
  for (const char* name : {"b.txt", "C.txt", "a.txt", "_.txt", "1.txt"}) {
    machine_->PutFile(In(name), "x");
  }
  EXPECT_EQ(Names(machine_->Folder(), "*"),
            (NameList{"1.txt", "_.txt", "a.txt", "b.txt", "C.txt"}));
}

TEST_F(FoldersContract, ListsWhatMatchesThePattern) {
  for (const char* name : {"one.log", "two.LOG", "three.txt", "log", "x1.log"}) {
    machine_->PutFile(In(name), "x");
  }
  EXPECT_EQ(Names(machine_->Folder(), "*.log"), (NameList{"one.log", "two.LOG", "x1.log"}));
  EXPECT_EQ(Names(machine_->Folder(), "t*"), (NameList{"three.txt", "two.LOG"}));
  EXPECT_EQ(Names(machine_->Folder(), "x?.log"), NameList{"x1.log"});
  EXPECT_EQ(Names(machine_->Folder(), "ONE.log"), NameList{"one.log"});
  EXPECT_EQ(Names(machine_->Folder(), "*.*").size(), 5u);
  EXPECT_EQ(Names(machine_->Folder(), "*.none"), NameList{});
}

TEST_F(FoldersContract, TellsSizeAndKind) {
  ASSERT_TRUE(files().MakeFolder(In("Folder")));
  machine_->PutFile(In("Folder\\inside.txt"), "x");
  machine_->PutFile(In("Seven.txt"), "1234567");
  const auto entries = files().List(machine_->Folder(), "*");
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].name, "Folder");
  EXPECT_TRUE(entries[0].is_folder);
  EXPECT_EQ(entries[0].size, 0u);
  EXPECT_EQ(entries[1].name, "Seven.txt");
  EXPECT_FALSE(entries[1].is_folder);
  EXPECT_EQ(entries[1].size, 7u);
}

TEST_F(FoldersContract, TellsWhenAFileWasChangedInLocalTime) {
  platform::LocalTime before = ports().clock.Now();
  // A file's stamp may lag a little behind the clock: not over the border of a minute here.
  while (before.second < 2) {
    ports().clock.Sleep(500);
    before = ports().clock.Now();
  }
  before.second = 0;
  machine_->PutFile(In("Now.txt"), "x");
  const auto entries = files().List(machine_->Folder(), "*");
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_GE(entries[0].modified, before);
  EXPECT_LE(entries[0].modified, ports().clock.Now());
}

TEST_F(FoldersContract, ListsNothingOfAMissingFolderOrAFile) {
  machine_->PutFile(In("File.txt"), "x");
  EXPECT_TRUE(files().List(In("Missing"), "*").empty());
  EXPECT_TRUE(files().List(In("File.txt"), "*").empty());
}

TEST_F(FoldersContract, StartsRelativePathsAtTheCurrentDirectory) {
  ASSERT_TRUE(files().MakeFolder(In("Sub")));
  machine_->PutFile(In("Sub\\File.txt"), "x");
  EXPECT_EQ(files().ChangeDirectory(machine_->Folder()), 0u);
  EXPECT_EQ(files().Read("Sub\\File.txt"), "x");
  EXPECT_EQ(files().ChangeDirectory(In("Sub")), 0u);
  EXPECT_EQ(files().Read("File.txt"), "x");
  EXPECT_TRUE(files().Replace("Other.txt", "y"));
  EXPECT_EQ(machine_->FileBytes(In("Sub\\Other.txt")), "y");
}

TEST_F(FoldersContract, StaysWhereItIsWhenADirectoryCannotBeEntered) {
  machine_->PutFile(In("File.txt"), "x");
  EXPECT_EQ(files().ChangeDirectory(machine_->Folder()), 0u);
  EXPECT_NE(files().ChangeDirectory(In("Missing")), 0u);
  EXPECT_NE(files().ChangeDirectory(In("File.txt")), 0u);
  EXPECT_EQ(files().Read("File.txt"), "x");
}

}  // namespace
