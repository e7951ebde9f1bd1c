// Starting programs, pictures and the record of the notification icon.
#include "tests/platform/contract_test.h"

namespace {

using platform::ShellVerb;
using platform::WaitResult;
using platform::WindowShow;

// An icon file with one picture of 16 by 16 points in 32-bit colours.
std::string IconFile() {
  constexpr std::size_t kPoints = 16 * 16;
  constexpr std::size_t kMask = 16 * 4;
  constexpr std::size_t kPicture = 40 + kPoints * 4 + kMask;
  std::string file("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0", 14);
  file += static_cast<char>(kPicture & 0xFF);
  file += static_cast<char>(kPicture >> 8);
  file += std::string("\0\0\x16\0\0\0", 6);
  file += std::string("\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\x20\0", 16) + std::string(24, '\0');
  for (std::size_t point = 0; point < kPoints; ++point) file += "\x20\x80\xE0\xFF";
  return file + std::string(kMask, '\0');
}

class ShellContract : public ContractTest {
 protected:
  platform::Shell& shell() { return ports().shell; }

  // Waits for a file that another program leaves behind.
  std::string ComesIn(const std::string& path) {
    constexpr int kTries = 600;
    for (int i = 0; i < kTries && !ports().files.Exists(path); ++i) ports().clock.Sleep(50);
    return machine_->FileBytes(path).value_or("(never came)");
  }

  WaitResult WaitForEnd(platform::ProcessHandle process) {
    constexpr std::uint32_t kLong = 30000;
    return ports().events.WaitForProcess(process, kLong);
  }

  // A window that the icon belongs to.
  std::uintptr_t Window() { return machine_->OpenWindow("", "Icon window"); }

  static constexpr std::uint32_t kCallback = 512;
};

TEST_F(ShellContract, OpensAProgramWithArgumentsAndFolder) {
  const std::string program = machine_->ProgramThatEnds("Opened.exe", 0);
  ASSERT_TRUE(ports().files.MakeFolder(In("Work")));
  EXPECT_GT(shell().Open(program, "one two", In("Work"), WindowShow::kNormal), 32);
  EXPECT_EQ(ComesIn(program + ".seen"), "one two|" + In("Work"));
}

TEST_F(ShellContract, OpensAProgramWithoutArguments) {
  const std::string program = machine_->ProgramThatEnds("Opened.exe", 0);
  EXPECT_GT(shell().Open(program, "", machine_->Folder(), WindowShow::kHidden), 32);
  EXPECT_EQ(ComesIn(program + ".seen"), "|" + machine_->Folder());
}

TEST_F(ShellContract, DoesNotOpenWhatIsMissing) {
  EXPECT_LE(shell().Open(In("Missing.exe"), "", "", WindowShow::kNormal), 32);
  EXPECT_LE(shell().Open(In("Missing\\Missing.exe"), "", "", WindowShow::kNormal), 32);
}

TEST_F(ShellContract, TellsADocumentWithoutAProgram) {
  machine_->PutFile(In("Document.nosuchkind"), "x");
  EXPECT_EQ(shell().Open(In("Document.nosuchkind"), "", "", WindowShow::kNormal),
            platform::kShellNoAssociation);
}

TEST_F(ShellContract, StartsAProgramAndWaitsForItsEnd) {
  const std::string program = machine_->ProgramThatEnds("Client.exe", 400);
  const auto started =
      shell().Start(ShellVerb::kOpen, program, " 23< >", machine_->Folder(), WindowShow::kHidden);
  ASSERT_NE(started.handle, platform::kNoProcess);
  EXPECT_EQ(started.error, 0u);
  EXPECT_EQ(ports().events.WaitForProcess(started.handle, 0), WaitResult::kTimedOut);
  EXPECT_EQ(WaitForEnd(started.handle), WaitResult::kSignalled);
  // It stays ended.
  EXPECT_EQ(ports().events.WaitForProcess(started.handle, 0), WaitResult::kSignalled);
  EXPECT_EQ(machine_->FileBytes(program + ".seen"), "23< >|" + machine_->Folder());
}

TEST_F(ShellContract, WaitsForEachOfTwoStartedPrograms) {
  const std::string program = machine_->ProgramThatEnds("Client.exe", 0);
  const auto first = shell().Start(ShellVerb::kOpen, program, "", "", WindowShow::kHidden);
  const auto second = shell().Start(ShellVerb::kOpen, program, "", "", WindowShow::kHidden);
  EXPECT_NE(first.handle, second.handle);
  EXPECT_EQ(WaitForEnd(second.handle), WaitResult::kSignalled);
  EXPECT_EQ(WaitForEnd(first.handle), WaitResult::kSignalled);
}

TEST_F(ShellContract, WaitsForAHiddenProgramWhateverIsOpenedMeanwhile) {
  const std::string client = machine_->ProgramThatEnds("Client.exe", 0);
  const std::string window = machine_->ProgramThatEnds("Window.exe", 0);
  const auto started = shell().Start(ShellVerb::kOpen, client, "", "", WindowShow::kHidden);
  for (int opened = 0; opened < 17; ++opened) {
    const auto other = shell().Start(ShellVerb::kOpen, window, "", "", WindowShow::kNormal);
    EXPECT_NE(other.handle, started.handle);
  }
  EXPECT_EQ(WaitForEnd(started.handle), WaitResult::kSignalled);
}

TEST_F(ShellContract, DoesNotStartWhatIsMissingAndTellsAnError) {
  const auto started =
      shell().Start(ShellVerb::kOpen, In("Missing.exe"), "", "", WindowShow::kHidden);
  EXPECT_EQ(started.handle, platform::kNoProcess);
  EXPECT_NE(started.error, 0u);
}

TEST_F(ShellContract, LoadsEachPictureOnce) {
  machine_->PutFile(In("One.ico"), IconFile());
  machine_->PutFile(In("Two.ico"), IconFile());
  const auto one = shell().LoadPicture(In("One.ico"));
  const auto two = shell().LoadPicture(In("Two.ico"));
  EXPECT_NE(one, platform::kNoPicture);
  EXPECT_NE(two, platform::kNoPicture);
  EXPECT_NE(one, two);
  EXPECT_EQ(shell().LoadPicture(In("One.ico")), one);
  EXPECT_EQ(shell().LoadPicture(In("ONE.ICO")), one);
}

TEST_F(ShellContract, KeepsAPictureWhoseFileIsGone) {
  machine_->PutFile(In("One.ico"), IconFile());
  const auto one = shell().LoadPicture(In("One.ico"));
  ASSERT_TRUE(ports().files.Remove(In("One.ico")));
  EXPECT_EQ(shell().LoadPicture(In("One.ico")), one);
}

TEST_F(ShellContract, LoadsNoPictureFromWhatIsNoIconAndLooksAgain) {
  EXPECT_EQ(shell().LoadPicture(In("One.ico")), platform::kNoPicture);
  machine_->PutFile(In("One.ico"), "this is no picture");
  EXPECT_EQ(shell().LoadPicture(In("One.ico")), platform::kNoPicture);
  machine_->PutFile(In("One.ico"), IconFile());
  EXPECT_NE(shell().LoadPicture(In("One.ico")), platform::kNoPicture);
}

TEST_F(ShellContract, AddsChangesAndRemovesTheIcon) {
  machine_->PutFile(In("One.ico"), IconFile());
  const auto picture = shell().LoadPicture(In("One.ico"));
  EXPECT_TRUE(shell().AddIcon(Window(), kCallback, picture, "tip"));
  EXPECT_TRUE(shell().SetIconTip("another tip"));
  EXPECT_TRUE(shell().SetIconPicture(picture));
  EXPECT_TRUE(shell().RemoveIcon());
}

TEST_F(ShellContract, HasNoIconToChangeBeforeItIsAddedAndAfterItIsRemoved) {
  EXPECT_FALSE(shell().SetIconTip("tip"));
  EXPECT_FALSE(shell().RemoveIcon());
  EXPECT_TRUE(shell().AddIcon(Window(), kCallback, platform::kNoPicture, "tip"));
  EXPECT_TRUE(shell().RemoveIcon());
  EXPECT_FALSE(shell().SetIconTip("tip"));
  EXPECT_FALSE(shell().SetIconPicture(platform::kNoPicture));
  EXPECT_FALSE(shell().RemoveIcon());
}

TEST_F(ShellContract, AddsTheIconOnlyOnce) {
  const std::uintptr_t window = Window();
  EXPECT_TRUE(shell().AddIcon(window, kCallback, platform::kNoPicture, "tip"));
  EXPECT_FALSE(shell().AddIcon(window, kCallback, platform::kNoPicture, "tip"));
  EXPECT_TRUE(shell().RemoveIcon());
  EXPECT_TRUE(shell().AddIcon(window, kCallback, platform::kNoPicture, "tip"));
  EXPECT_TRUE(shell().RemoveIcon());
}

TEST_F(ShellContract, TakesATipThatIsTooLong) {
  EXPECT_TRUE(shell().AddIcon(Window(), kCallback, platform::kNoPicture, std::string(300, 't')));
  EXPECT_TRUE(shell().SetIconTip(std::string(64, 'u')));
  EXPECT_TRUE(shell().SetIconTip(""));
  EXPECT_TRUE(shell().RemoveIcon());
}

TEST_F(ShellContract, KnownFoldersAreFullPathsWithoutAFinalBackslash) {
  using platform::KnownFolder;
  for (const KnownFolder which :
       {KnownFolder::kDesktop, KnownFolder::kDocuments, KnownFolder::kMusic, KnownFolder::kPictures,
        KnownFolder::kVideos, KnownFolder::kFavourites, KnownFolder::kCommonFavourites,
        KnownFolder::kInternetCache, KnownFolder::kCookies, KnownFolder::kTemporary}) {
    const std::string path = shell().FindFolder(which);
    ASSERT_GT(path.size(), 3u) << static_cast<int>(which);
    EXPECT_EQ(path.substr(1, 2), ":\\");
    EXPECT_FALSE(path.ends_with('\\')) << path;
  }
}

}  // namespace
