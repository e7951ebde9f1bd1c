#include "status/backup_state.h"

#include <gtest/gtest.h>

#include "tests/status/status_machine.h"

namespace status {
namespace {

class BackupState : public ::testing::Test, public StatusMachine {
 protected:
  std::int16_t Read() { return ReadBackupState(machine.platform(), state); }
  void MarkJob() { machine.files().Put(Path("scheduleInfo.txt"), ""); }
};

TEST_F(BackupState, IsZeroWithoutTheMarkerWhateverTheStatusSays) {
  Set("Status", "1");
  Set("RetValue", "402");
  state.last_return_value = 7;
  EXPECT_EQ(Read(), 0);
  EXPECT_EQ(state.last_return_value, 0);
}

TEST_F(BackupState, GivesStatusAndResultWithTheMarker) {
  MarkJob();
  Set("Status", "1");
  Set("RetValue", "-432");
  EXPECT_EQ(Read(), 1);
  EXPECT_EQ(state.last_return_value, -432);
}

TEST_F(BackupState, KeepsZeroForBlankOrWrongTexts) {
  MarkJob();
  for (const std::string_view text : {"", "   ", "\"  \"", "x", "99999", "1a"}) {
    Set("Status", text);
    Set("RetValue", text == "99999" ? "x" : text);
    state.last_return_value = 7;
    EXPECT_EQ(Read(), 0) << text;
    EXPECT_EQ(state.last_return_value, 0) << text;
  }
}

TEST_F(BackupState, ReadsTheUserAfresh) {
  MarkJob();
  Set("Status", "1");
  LogIn("bert");
  EXPECT_EQ(Read(), 0);
  EXPECT_EQ(state.CurrentUser, "bert");
}

TEST_F(BackupState, LooksIntoTheCommonFolderWithNobodyLoggedIn) {
  LogIn("");
  machine.files().Put("C:\\Sorvane\\SorvaneE\\scheduleInfo.txt", "");
  machine.files().PutIni("C:\\Sorvane\\SorvaneE\\SorvaneE.ini", "BackupStatus", "Status", "5");
  EXPECT_EQ(Read(), 5);
  EXPECT_EQ(state.CurrentUser, "");
}

}  // namespace
}  // namespace status
