#include <gtest/gtest.h>

#include "tests/status/controller_fixture.h"

namespace status {
namespace {

using Lines = std::vector<std::string>;

class TransferCommands : public testing::Test, public ControllerFixture {
 protected:
  // True when the trace has these pieces, each behind the one before.
  bool TraceHasInOrder(const Lines& pieces) {
    const std::string trace = TraceText();
    std::size_t at = 0;
    for (const std::string& piece : pieces) {
      at = trace.find(piece, at);
      if (at == std::string::npos) return false;
      at += piece.size();
    }
    return true;
  }
  // Writes of one section, as "key=value".
  Lines StatusWrites() {
    Lines result;
    const std::string head = Profile() + " [BackupStatus] ";
    for (const std::string& line : machine.journal().Excerpt("profile")) {
      if (line.starts_with(head)) result.push_back(line.substr(head.size()));
    }
    return result;
  }
};

TEST_F(TransferCommands, WritesThePauseByTheFileWhateverTheCaptionSays) {
  StartTransfer("1");
  window.FastTick();
  window.PauseClick();
  EXPECT_EQ(Read("Paused"), "1");
  EXPECT_TRUE(View().transfer.says_resume);
  // Somebody else resumed it: the click pauses again.
  Set("Paused", "0");
  window.PauseClick();
  EXPECT_EQ(Read("Paused"), "1");
  EXPECT_TRUE(View().transfer.says_resume);
  window.PauseClick();
  EXPECT_EQ(Read("Paused"), "0");
  EXPECT_FALSE(View().transfer.says_resume);
}

struct TipCase {
  std::string_view job;
  std::string_view tip;
};

constexpr TipCase kTips[] = {
    {"1", "tip Sorvane - Interactive backup has been paused."},
    {"2", "tip Sorvane - The scheduled backup job has been paused."},
    {"", "tip Sorvane - The scheduled backup job has been paused."},
    {"3", "tip Sorvane - The restore operation has been paused."},
};

TEST_F(TransferCommands, SetTheTipAtOnce) {
  for (const TipCase& one : kTips) {
    StartTransfer(one.job);
    commands.calls.clear();
    window.PauseClick();
    window.PauseClick();
    EXPECT_EQ(commands.calls, (Lines{std::string(one.tip), "tip built"}));
  }
}

TEST_F(TransferCommands, RefreshThePanelOnAPause) {
  StartTransfer("3");
  window.FastTick();
  window.PauseClick();
  EXPECT_EQ(View().transfer.overall,
            "Restore process has been paused. Click 'Resume' to continue.");
  EXPECT_TRUE(View().transfer.overall_red);
}

TEST_F(TransferCommands, AskBeforeTheyCancel) {
  StartTransfer("1");
  window.FastTick();
  messages.answer = false;
  machine.journal().Clear();
  window.CancelClick();
  EXPECT_EQ(messages.dismissed, 1);
  EXPECT_EQ(messages.questions,
            Lines{"Are you sure you want to cancel the backup operation ? [Yes|No]"});
  EXPECT_TRUE(machine.journal().Excerpt("profile").empty());
  EXPECT_TRUE(screen.events.empty());
  EXPECT_NE(TraceText().find("Progress Cancel confirm - NO"), std::string::npos);
}

TEST_F(TransferCommands, AskAboutTheRestore) {
  StartTransfer("3");
  messages.answer = false;
  window.CancelClick();
  EXPECT_EQ(messages.questions,
            Lines{"Are you sure you want to cancel the restore operation ? [Yes|No]"});
}

TEST_F(TransferCommands, EndAnInteractiveBackup) {
  StartTransfer("1");
  machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  window.FastTick();
  machine.journal().Clear();
  const std::uint64_t before = machine.now();
  window.CancelClick();
  EXPECT_EQ(StatusWrites(), (Lines{"Paused=0", "Cancel=1", "Paused=0", "Paused=0", "Paused=0"}));
  EXPECT_EQ(machine.now() - before, 1000u);
  EXPECT_FALSE(machine.processes().IsRunning("SorvaneEClsClient.exe"));
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "\r\n");
  EXPECT_FALSE(ProgressChannel(machine.platform(), state).IsTransferInProgress());
  EXPECT_EQ(Read("Cancel"), "1");
  EXPECT_EQ(screen.events, Lines{"unload"});
  EXPECT_FALSE(View().slow_timer || View().fast_timer);
  EXPECT_TRUE(
      TraceHasInOrder({"Progress Cancel pressed", "[INFORMATION] Progress Cancel confirm - YES",
                       "[INFORMATION] strProgramVal :1", "Backup or restore progress canceled."}));
}

TEST_F(TransferCommands, LeaveAScheduledJobToTheTraysStop) {
  StartTransfer("2");
  window.FastTick();
  machine.journal().Clear();
  window.CancelClick();
  EXPECT_EQ(commands.calls, Lines{"stop"});
  EXPECT_EQ(StatusWrites(), Lines{"Paused=0"});
  EXPECT_EQ(screen.events, Lines{"unload"});
}

TEST_F(TransferCommands, ClearTheChannelEvenWhenTheClientCannotBeEnded) {
  StartTransfer("3");
  const auto id = machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  machine.processes().SetTerminable(id, false);
  window.CancelClick();
  EXPECT_TRUE(machine.processes().IsRunning("SorvaneEClsClient.exe"));
  EXPECT_FALSE(ProgressChannel(machine.platform(), state).IsTransferInProgress());
}

TEST_F(TransferCommands, LeaveTheOutcomeOfACanceledScheduledJob) {
  StartTransfer("2");
  window.FastTick();
  window.ResetStatusWindow();
  EXPECT_EQ(View().status_line, EnglishTexts().job_canceled);
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), EnglishTexts().job_canceled + "\r\n");
  EXPECT_EQ(Read("Cancel"), "1");
  EXPECT_EQ(Read("Paused"), "0");
  EXPECT_FALSE(View().transfer_shown);
  EXPECT_TRUE(View().notification_shown && View().slow_timer && View().fast_timer);
}

TEST_F(TransferCommands, BringBackWhatTheTransferHadHidden) {
  for (const std::string_view job : {"1", "2", "3"}) {
    StartTransfer(job);
    window.FastTick();
    EXPECT_FALSE(View().quota_bar_shown);
    window.ResetStatusWindow();
    EXPECT_TRUE(View().quota_bar_shown && View().quota_text_shown && View().space_label_shown);
    EXPECT_EQ(View().next_line, "Your next backup will occur on  02-15-2011 10:30:00");
    EXPECT_FALSE(View().pause_shown || View().transfer.controls_shown);
    StartTransfer(job);
    window.FastTick();
    EXPECT_TRUE(View().pause_shown && View().transfer.controls_shown);
  }
}

TEST_F(TransferCommands, LetNoTickSeeAHalfCanceledJob) {
  StartTransfer("1");
  window.FastTick();
  // Reading the user pumps, too; what counts is the pump behind the request.
  bool seen = false;
  std::function<void()> look = [&] {
    if (Read("Cancel") != "1") return machine.WhenPumped(look);
    seen = true;
    EXPECT_FALSE(screen.views.back().slow_timer || screen.views.back().fast_timer);
    EXPECT_FALSE(screen.views.back().transfer_shown);
    EXPECT_FALSE(screen.views.back().notification_shown);
  };
  machine.WhenPumped(look);
  window.ResetStatusWindow();
  EXPECT_TRUE(seen);
}

TEST_F(TransferCommands, ClearWhatTheEngineWritesDuringTheWait) {
  StartTransfer("1");
  machine.At(machine.now() + 500,
             [this] { SetProgress("BackupProgressInfo", "BackupInProgress", "1"); });
  window.ResetStatusWindow();
  EXPECT_FALSE(ProgressChannel(machine.platform(), state).IsTransferInProgress());
}

TEST_F(TransferCommands, TurnAutoPauseOnInBothStores) {
  StartTransfer("1");
  SetShared("BackupIdle", "0");
  window.FastTick();
  machine.journal().Clear();
  window.AutoPauseClick();
  EXPECT_TRUE(View().transfer.bandwidth.auto_pause);
  EXPECT_EQ(View().transfer.bandwidth.value, 25);
  const std::string profile = Profile() + " [Tolvex] ";
  const std::string user = std::string(kUserIni) + " [Registry] ";
  EXPECT_EQ(machine.journal().Excerpt("profile"),
            (Lines{profile + Shifted("Bandwidth") + "=" + Shifted("25"),
                   profile + Shifted("BandwidthIdleState") + "=" + Shifted("25"),
                   profile + Shifted("BackupIdle") + "=" + Shifted("1"), user + "BackupIdleState=1",
                   user + "BackupIdle=1"}));
  window.FastTick();
  EXPECT_TRUE(View().transfer.bandwidth.auto_pause);
}

TEST_F(TransferCommands, TurnAutoPauseOffInBothStores) {
  StartTransfer("1");
  SetShared("BackupIdle", "1");
  SetShared("BackupIdleState", "1");
  SetShared("Bandwidth", "60");
  window.FastTick();
  machine.journal().Clear();
  window.AutoPauseClick();
  EXPECT_FALSE(View().transfer.bandwidth.auto_pause);
  EXPECT_EQ(View().transfer.bandwidth.value, 60);
  const std::string profile = Profile() + " [Tolvex] ";
  const std::string user = std::string(kUserIni) + " [Registry] ";
  EXPECT_EQ(machine.journal().Excerpt("profile"),
            (Lines{profile + Shifted("Bandwidth") + "=" + Shifted("60"),
                   profile + Shifted("BackupIdle") + "=" + Shifted("0"), user + "BackupIdleState=0",
                   user + "BackupIdle=0"}));
}

TEST_F(TransferCommands, KeepTheUserWhenTheSettingsGoToTheClientsUser) {
  machine.files().PutIni(kUserIni, "Tolvex", "Interactive", "bert");
  machine.files().PutFolder(Folder("bert"));
  StartTransfer("1");
  window.AutoPauseClick();
  EXPECT_EQ(state.CurrentUser, "anna");
  EXPECT_EQ(machine.files().IniValue(Path("SorvaneE.ini", "bert"), "Tolvex", Shifted("Bandwidth")),
            Shifted("25"));
}

TEST_F(TransferCommands, StoreTheSliderOnlyWhenItIsLetGo) {
  StartTransfer("1");
  window.FastTick();
  machine.journal().Clear();
  window.SliderMove(40);
  window.SliderMove(45);
  EXPECT_EQ(View().transfer.bandwidth.value, 45);
  EXPECT_TRUE(machine.journal().Excerpt("profile").empty());
  window.SliderRelease();
  EXPECT_EQ(machine.journal().Excerpt("profile"),
            Lines{std::string(kUserIni) + " [Registry] Bandwidth=45"});
  SetShared("BackupIdle", "1");
  window.SliderRelease();
  EXPECT_EQ(machine.files().IniValue(kUserIni, "Registry", "BandwidthIdleState"), "45");
}

}  // namespace
}  // namespace status
