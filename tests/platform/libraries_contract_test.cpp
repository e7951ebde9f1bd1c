// The closed libraries that are loaded by name.
#include "tests/platform/contract_test.h"

namespace {

class LibrariesContract : public ContractTest {
 protected:
  platform::Libraries& libraries() { return ports().libraries; }

  const std::string path_ = In("Library.dll");
};

TEST_F(LibrariesContract, ReadsTheStringsOfItsTable) {
  machine_->PutLibrary(path_);
  EXPECT_EQ(libraries().ReadString(path_, 1), "One");
  EXPECT_EQ(libraries().ReadString(path_, 7), "Sieben");
  EXPECT_EQ(libraries().ReadString(path_, 1575), "Log Viewer");
}

TEST_F(LibrariesContract, ReadsAllOfALongString) {
  machine_->PutLibrary(path_);
  EXPECT_EQ(libraries().ReadString(path_, 4095), std::string(300, 'x'));
}

TEST_F(LibrariesContract, GivesNothingForANumberWithoutAString) {
  machine_->PutLibrary(path_);
  for (const std::uint32_t id : {0u, 2u, 8u, 65535u, 65537u, 0xFFFFFFFFu}) {
    EXPECT_EQ(libraries().ReadString(path_, id), "") << id;
  }
}

TEST_F(LibrariesContract, CallsFunctionsByName) {
  machine_->PutLibrary(path_);
  EXPECT_EQ(libraries().Call(path_, "AddOne", 41), 42);
  EXPECT_EQ(libraries().Call(path_, "AddOne", -1), 0);
  EXPECT_EQ(libraries().Call(path_, "Negate", 7), -7);
}

TEST_F(LibrariesContract, GivesNothingForAFunctionThatThereIsNot) {
  machine_->PutLibrary(path_);
  EXPECT_EQ(libraries().Call(path_, "AddTwo", 1), std::nullopt);
  EXPECT_EQ(libraries().Call(path_, "", 1), std::nullopt);
}

TEST_F(LibrariesContract, LooksAgainForALibraryThatWasMissing) {
  EXPECT_EQ(libraries().ReadString(path_, 1), "");
  EXPECT_EQ(libraries().Call(path_, "AddOne", 1), std::nullopt);
  machine_->PutLibrary(path_);
  EXPECT_EQ(libraries().ReadString(path_, 1), "One");
  EXPECT_EQ(libraries().Call(path_, "AddOne", 1), 2);
}

TEST_F(LibrariesContract, TakesNoOtherFileForALibrary) {
  machine_->PutFile(path_, "this is no library");
  EXPECT_EQ(libraries().ReadString(path_, 1), "");
  EXPECT_EQ(libraries().Call(path_, "AddOne", 1), std::nullopt);
  machine_->PutFile(In("Empty.dll"), "");
  EXPECT_EQ(libraries().ReadString(In("Empty.dll"), 1), "");
  EXPECT_EQ(libraries().ReadString(machine_->Folder(), 1), "");
}

TEST_F(LibrariesContract, SearchesNowhereForANameWithoutAFolder) {
  machine_->PutLibrary(path_);
  ASSERT_EQ(ports().files.ChangeDirectory(machine_->Folder()), 0u);
  EXPECT_EQ(libraries().ReadString("Library.dll", 1), "");
  EXPECT_EQ(libraries().Call("kernel32.dll", "GetTickCount", 0), std::nullopt);
  EXPECT_EQ(libraries().Call("", "AddOne", 0), std::nullopt);
}

TEST_F(LibrariesContract, KeepsWhatItHasLoaded) {
  machine_->PutLibrary(path_);
  machine_->PutLibrary(In("Second.dll"));
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(libraries().ReadString(path_, 7), "Sieben");
    EXPECT_EQ(libraries().Call(In("Second.dll"), "AddOne", i), i + 1);
  }
}

TEST_F(LibrariesContract, CallsAFunctionWithAText) {
  machine_->PutLibrary(path_);
  EXPECT_TRUE(libraries().CallWithText(path_, "LeaveMark", In("mark.txt")));
  EXPECT_EQ(machine_->FileBytes(In("mark.txt")), "mark");
}

TEST_F(LibrariesContract, ATextWithoutALibraryOrFunctionIsNotHandedOver) {
  EXPECT_FALSE(libraries().CallWithText(path_, "LeaveMark", In("mark.txt")));
  machine_->PutLibrary(path_);
  EXPECT_FALSE(libraries().CallWithText(path_, "LeaveNoMark", In("mark.txt")));
  EXPECT_EQ(machine_->FileBytes(In("mark.txt")), std::nullopt);
}

TEST_F(LibrariesContract, ATextThatDoesNotFitIsNotHandedOver) {
  machine_->PutLibrary(path_);
  EXPECT_FALSE(libraries().CallWithText(path_, "LeaveMark", std::string(260, 'x')));
}

}  // namespace
