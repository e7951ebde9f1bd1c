// Whole files.
#include "tests/platform/contract_test.h"

namespace {

class FilesContract : public ContractTest {
 protected:
  platform::Files& files() { return ports().files; }

  // The names in the machine's folder: nothing may be left beside a file.
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : files().List(machine_->Folder(), "*")) names.push_back(entry.name);
    return names;
  }

  void ExpectUntouched(const std::string& path, const std::string& bytes) {
    EXPECT_EQ(machine_->FileBytes(path), bytes);
    EXPECT_EQ(Names().size(), 1u);
  }

  const std::string file_ = In("File.txt");
};

TEST_F(FilesContract, FindsFilesInAnyCase) {
  machine_->PutFile(file_, "x");
  EXPECT_TRUE(files().Exists(file_));
  EXPECT_TRUE(files().Exists(In("fILE.TXT")));
  EXPECT_FALSE(files().Exists(In("Other.txt")));
  EXPECT_FALSE(files().Exists(In("Missing\\File.txt")));
}

TEST_F(FilesContract, TellsFilesFromFolders) {
  machine_->PutFile(file_, "x");
  EXPECT_FALSE(files().Exists(machine_->Folder()));
  EXPECT_TRUE(files().FolderExists(machine_->Folder()));
  EXPECT_FALSE(files().FolderExists(file_));
  EXPECT_FALSE(files().FolderExists(In("Missing")));
}

TEST_F(FilesContract, FindsNothingUnderAnEmptyName) {
  EXPECT_FALSE(files().Exists(""));
  EXPECT_FALSE(files().FolderExists(""));
  EXPECT_EQ(files().Read(""), std::nullopt);
  EXPECT_EQ(files().Size(""), std::nullopt);
  EXPECT_FALSE(files().Remove(""));
  EXPECT_FALSE(files().Replace("", "x"));
}

TEST_F(FilesContract, ReadsEveryByte) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  machine_->PutFile(file_, bytes);
  EXPECT_EQ(files().Read(file_), bytes);
}

TEST_F(FilesContract, ReadsAnEmptyFileAsEmptyAndNotAsMissing) {
  machine_->PutFile(file_, "");
  EXPECT_EQ(files().Read(file_), "");
  EXPECT_EQ(files().Size(file_), 0u);
}

TEST_F(FilesContract, ReadsUpToTheLimit) {
  machine_->PutFile(file_, "0123456789");
  EXPECT_EQ(files().Read(file_, 4), "0123");
  EXPECT_EQ(files().Read(file_, 10), "0123456789");
  EXPECT_EQ(files().Read(file_, 11), "0123456789");
  EXPECT_EQ(files().Read(file_, 0), "");
}

TEST_F(FilesContract, ReadsAFileOfMoreThanAMegabyte) {
  const std::string bytes(3'000'001, 'z');
  EXPECT_TRUE(files().Replace(file_, bytes));
  EXPECT_EQ(files().Read(file_), bytes);
}

TEST_F(FilesContract, ReadsNothingFromMissingFoldersAndLockedFiles) {
  EXPECT_EQ(files().Read(file_), std::nullopt);
  EXPECT_EQ(files().Read(machine_->Folder()), std::nullopt);
  machine_->PutFile(file_, "x");
  machine_->LockFile(file_);
  EXPECT_EQ(files().Read(file_), std::nullopt);
  EXPECT_TRUE(files().Exists(file_));
  machine_->UnlockFile(file_);
  EXPECT_EQ(files().Read(file_), "x");
}

TEST_F(FilesContract, ReadsAFileThatAnotherKeepsOpenForReading) {
  machine_->PutFile(file_, "x");
  machine_->LockForWriting(file_);
  EXPECT_EQ(files().Read(file_), "x");
}

TEST_F(FilesContract, ReplacesTheWholeContent) {
  EXPECT_TRUE(files().Replace(file_, "a long first content"));
  EXPECT_EQ(machine_->FileBytes(file_), "a long first content");
  EXPECT_TRUE(files().Replace(file_, "short"));
  EXPECT_EQ(machine_->FileBytes(file_), "short");
  EXPECT_TRUE(files().Replace(file_, ""));
  EXPECT_EQ(machine_->FileBytes(file_), "");
  EXPECT_EQ(Names(), std::vector<std::string>{"File.txt"});
}

TEST_F(FilesContract, KeepsTheOldContentWhenTheTargetIsLocked) {
  machine_->PutFile(file_, "old");
  machine_->LockFile(file_);
  EXPECT_FALSE(files().Replace(file_, "new"));
  machine_->UnlockFile(file_);
  ExpectUntouched(file_, "old");
}

TEST_F(FilesContract, KeepsTheOldContentWhenOthersOnlyLetRead) {
  machine_->PutFile(file_, "old");
  machine_->LockForWriting(file_);
  EXPECT_FALSE(files().Replace(file_, "new"));
  machine_->UnlockFile(file_);
  ExpectUntouched(file_, "old");
}

TEST_F(FilesContract, KeepsTheOldContentWhenTheTargetIsReadOnly) {
  machine_->PutFile(file_, "old");
  machine_->SetReadOnly(file_, true);
  EXPECT_FALSE(files().Replace(file_, "new"));
  ExpectUntouched(file_, "old");
}

TEST_F(FilesContract, ReplacesNoFolderAndMakesNone) {
  ASSERT_TRUE(files().MakeFolder(In("Folder")));
  EXPECT_FALSE(files().Replace(In("Folder"), "new"));
  EXPECT_TRUE(files().FolderExists(In("Folder")));
  EXPECT_FALSE(files().Replace(In("Missing\\File.txt"), "new"));
  EXPECT_EQ(Names(), std::vector<std::string>{"Folder"});
}

TEST_F(FilesContract, GivesTheSizeOfFilesOnly) {
  machine_->PutFile(file_, "12345");
  EXPECT_EQ(files().Size(file_), 5u);
  EXPECT_EQ(files().Size(In("Missing")), std::nullopt);
  EXPECT_EQ(files().Size(machine_->Folder()), std::nullopt);
}

TEST_F(FilesContract, RemovesAFileOnce) {
  machine_->PutFile(file_, "x");
  EXPECT_TRUE(files().Remove(file_));
  EXPECT_FALSE(files().Exists(file_));
  EXPECT_FALSE(files().Remove(file_));
}

TEST_F(FilesContract, DoesNotRemoveWhatIsLockedReadOnlyOrAFolder) {
  machine_->PutFile(file_, "x");
  machine_->LockFile(file_);
  EXPECT_FALSE(files().Remove(file_));
  machine_->UnlockFile(file_);
  machine_->SetReadOnly(file_, true);
  EXPECT_FALSE(files().Remove(file_));
  ExpectUntouched(file_, "x");
  ASSERT_TRUE(files().MakeFolder(In("Folder")));
  EXPECT_FALSE(files().Remove(In("Folder")));
}

TEST_F(FilesContract, CopiesOverTheTarget) {
  machine_->PutFile(file_, "new");
  EXPECT_TRUE(files().Copy(file_, In("Copy.txt")));
  EXPECT_EQ(machine_->FileBytes(In("Copy.txt")), "new");
  machine_->PutFile(file_, "newer");
  EXPECT_TRUE(files().Copy(file_, In("Copy.txt")));
  EXPECT_EQ(machine_->FileBytes(In("Copy.txt")), "newer");
  EXPECT_EQ(machine_->FileBytes(file_), "newer");
}

TEST_F(FilesContract, KeepsTheTargetWhenTheSourceCannotBeRead) {
  machine_->PutFile(In("Copy.txt"), "old");
  EXPECT_FALSE(files().Copy(file_, In("Copy.txt")));
  EXPECT_FALSE(files().Copy(machine_->Folder(), In("Copy.txt")));
  ExpectUntouched(In("Copy.txt"), "old");
  machine_->PutFile(file_, "new");
  machine_->LockFile(file_);
  EXPECT_FALSE(files().Copy(file_, In("Copy.txt")));
  EXPECT_EQ(machine_->FileBytes(In("Copy.txt")), "old");
}

TEST_F(FilesContract, KeepsATargetOfACopyThatIsLockedReadOnlyOrAFolder) {
  machine_->PutFile(file_, "new");
  machine_->PutFile(In("Copy.txt"), "old");
  machine_->LockFile(In("Copy.txt"));
  EXPECT_FALSE(files().Copy(file_, In("Copy.txt")));
  machine_->UnlockFile(In("Copy.txt"));
  machine_->SetReadOnly(In("Copy.txt"), true);
  EXPECT_FALSE(files().Copy(file_, In("Copy.txt")));
  EXPECT_EQ(machine_->FileBytes(In("Copy.txt")), "old");
  ASSERT_TRUE(files().MakeFolder(In("Folder")));
  EXPECT_FALSE(files().Copy(file_, In("Folder")));
  EXPECT_FALSE(files().Copy(file_, In("Missing\\Copy.txt")));
  EXPECT_EQ(Names().size(), 3u);
}

TEST_F(FilesContract, AppendsUtf16LinesBehindOneMark) {
  EXPECT_TRUE(files().AppendUtf16Line(file_, "A"));
  EXPECT_EQ(machine_->FileBytes(file_), std::string("\xFF\xFE"
                                                    "A\0\r\0\n\0",
                                                    8));
  EXPECT_TRUE(files().AppendUtf16Line(file_, "b"));
  EXPECT_TRUE(files().AppendUtf16Line(file_, ""));
  EXPECT_EQ(machine_->FileBytes(file_), std::string("\xFF\xFE"
                                                    "A\0\r\0\n\0b\0\r\0\n\0\r\0\n\0",
                                                    18));
}

TEST_F(FilesContract, PutsTheMarkIntoAnEmptyFile) {
  machine_->PutFile(file_, "");
  EXPECT_TRUE(files().AppendUtf16Line(file_, "A"));
  EXPECT_EQ(machine_->FileBytes(file_), std::string("\xFF\xFE"
                                                    "A\0\r\0\n\0",
                                                    8));
}

TEST_F(FilesContract, AppendsToWhateverIsThere) {
  machine_->PutFile(file_, "other");
  EXPECT_TRUE(files().AppendUtf16Line(file_, "A"));
  EXPECT_EQ(machine_->FileBytes(file_), std::string("otherA\0\r\0\n\0", 11));
}

TEST_F(FilesContract, ConvertsAppendedLinesFromTheCodePage) {
  if (ports().locale.AnsiCodePage() != 1252) GTEST_SKIP() << "another code page";
  EXPECT_TRUE(files().AppendUtf16Line(file_, "\xE4\x80"));
  EXPECT_EQ(machine_->FileBytes(file_), std::string("\xFF\xFE\xE4\0\xAC\x20\r\0\n\0", 10));
}

TEST_F(FilesContract, DoesNotAppendToWhatCannotBeOpened) {
  machine_->PutFile(file_, "old");
  machine_->LockFile(file_);
  EXPECT_FALSE(files().AppendUtf16Line(file_, "A"));
  machine_->UnlockFile(file_);
  machine_->LockForWriting(file_);
  EXPECT_FALSE(files().AppendUtf16Line(file_, "A"));
  machine_->UnlockFile(file_);
  machine_->SetReadOnly(file_, true);
  EXPECT_FALSE(files().AppendUtf16Line(file_, "A"));
  ExpectUntouched(file_, "old");
  EXPECT_FALSE(files().AppendUtf16Line(machine_->Folder(), "A"));
  EXPECT_FALSE(files().AppendUtf16Line(In("Missing\\File.txt"), "A"));
}

}  // namespace
