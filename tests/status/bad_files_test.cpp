// Any file of the channel in any bad state reads as an empty value and is never made worse.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "status/backup_state.h"
#include "status/progress_channel.h"
#include "status/status_snapshot.h"
#include "tests/status/status_machine.h"

namespace status {
namespace {

std::string Noise(std::size_t length) {
  std::string bytes;
  std::uint32_t next = 12345;
  while (bytes.size() < length) {
    next = next * 1664525u + 1013904223u;
    bytes += static_cast<char>(next >> 24);
  }
  return bytes;
}

struct BadFile {
  std::string_view name;
  std::function<void(StatusMachine&, const std::string& path)> make;
};

const std::vector<BadFile>& BadFiles() {
  static const std::vector<BadFile> kinds = {
      {"missing",
       [](StatusMachine& m, const std::string& path) { m.machine.files().Delete(path); }},
      {"empty", [](StatusMachine& m, const std::string& path) { m.machine.files().Put(path, ""); }},
      {"a folder",
       [](StatusMachine& m, const std::string& path) {
         m.machine.files().Delete(path);
         m.machine.files().PutFolder(path);
       }},
      {"locked",
       [](StatusMachine& m, const std::string& path) {
         m.machine.files().Put(path, "1\r\n");
         m.machine.LockFile(path);
       }},
      {"huge",
       [](StatusMachine& m, const std::string& path) {
         m.machine.files().Put(path, std::string(std::size_t{1} << 22, 'x'));
       }},
      {"noise", [](StatusMachine& m,
                   const std::string& path) { m.machine.files().Put(path, Noise(65537)); }},
      {"half written",
       [](StatusMachine& m, const std::string& path) { m.machine.files().Put(path, "[BackupSt"); }},
  };
  return kinds;
}

constexpr std::string_view kFiles[] = {"BackupProgress.ini", "SorvaneE.ini",     "SchStatus.txt",
                                       "SchStatusError.txt", "scheduleData.txt", "scheduleInfo.txt",
                                       "QuotaExceeded.txt"};

TEST(BadChannelFiles, AreReadWithoutHarmInAnyState) {
  for (const std::string_view file : kFiles) {
    for (const BadFile& kind : BadFiles()) {
      SCOPED_TRACE(std::string(file) + " is " + std::string(kind.name));
      StatusMachine m;
      kind.make(m, m.Path(file));
      const std::string before = m.machine.files().Dump();
      ProgressChannel channel(m.machine.platform(), m.state);
      EXPECT_FALSE(channel.IsTransferInProgress());
      EXPECT_FALSE(channel.SyncPaused());
      EXPECT_EQ(ReadBackupState(m.machine.platform(), m.state), 0);
      ReadIdleSnapshot(m.machine.platform(), m.state);
      ReadTransferSnapshot(m.machine.platform(), m.state);
      EXPECT_LE(channel.ReadOutcome().value_or("").size(), 65536u);
      EXPECT_EQ(m.machine.files().Dump(), before);
    }
  }
}

TEST(BadChannelFiles, TakeWritesAsLostWhenTheyAreLocked) {
  StatusMachine m;
  m.machine.files().Put(m.Path("SchStatus.txt"), "good\r\n");
  m.Set("Paused", "1");
  m.machine.LockFile(m.Path("SchStatus.txt"));
  m.machine.LockFile(m.Profile());
  ProgressChannel channel(m.machine.platform(), m.state);
  channel.WriteOutcome("new");
  channel.WriteBackupStatus(kPaused, "0");
  EXPECT_EQ(m.machine.files().Content(m.Path("SchStatus.txt")), "good\r\n");
  EXPECT_EQ(m.Read("Paused"), "1");
  EXPECT_EQ(channel.ReadOutcome(), std::nullopt);
}

TEST(BadChannelFiles, KeepTheirContentOnAFullDisk) {
  StatusMachine m;
  m.StartTransfer("1");
  m.machine.FillDisk();
  const std::string before = m.machine.files().Content(m.Progress());
  ProgressChannel(m.machine.platform(), m.state).ResetProgressFile();
  EXPECT_EQ(m.machine.files().Content(m.Progress()), before);
}

TEST(BadChannelFiles, NeedNoUserFolder) {
  StatusMachine m;
  m.machine.files().Delete(m.Folder());
  ProgressChannel channel(m.machine.platform(), m.state);
  channel.ResetProgressFile();
  channel.WriteOutcome("x");
  channel.MarkQuota();
  EXPECT_FALSE(channel.IsQuotaMarked());
  EXPECT_EQ(channel.ReadOutcome(), "");
}

}  // namespace
}  // namespace status
