// No port keeps more of the system's objects the longer it is used.
#include "platform/win32/handle_balance.h"

#include <array>

#include "tests/platform/contract_test.h"

namespace {

using platform::win32::CountOf;
using platform::win32::ObjectKind;

class HandleBalance : public ContractTest {
 protected:
  // What the agent asks of the machine again and again.
  void UseEveryPort() {
    const std::string file = In("Profile.ini");
    ports().profile_files.WriteText(file, "S", "k", "v");
    ports().profile_files.ReadText(file, "S", "k");
    ports().files.Read(file);
    ports().files.Read(In("Missing"));
    ports().files.Replace(In("Whole.txt"), "x");
    ports().files.Replace(In("Missing\\Whole.txt"), "x");
    ports().files.AppendUtf16Line(In("Trace.txt"), "line");
    ports().files.Copy(file, In("Copy.txt"));
    ports().files.List(machine_->Folder(), "*");
    ports().files.MakeFolder(In("Folder"));
    ports().files.RemoveFolder(In("Folder"));
    ports().registry.CreateKey(platform::Hive::kCurrentUser, machine_->RegistryKey());
    ports().registry.Read(platform::Hive::kCurrentUser, machine_->RegistryKey(), "x", 255,
                          platform::RegistryAccess::kAll);
    ports().registry.Flush(platform::Hive::kCurrentUser, machine_->RegistryKey());
    ports().services.State("No such service", platform::ServiceAccess::kRead);
    ports().processes.WalkSnapshot([](const platform::ProcessEntry&) { return true; });
    ports().processes.WalkModuleNames(1024, [](const platform::ProcessEntry&) { return true; });
    ports().libraries.ReadString(In("Missing.dll"), 1);
    ports().shell.LoadPicture(In("Missing.ico"));
    ports().events.StopTimer(ports().events.StartTimer(1000, [] {}));
    ports().events.Pump();
  }

  std::array<std::uint64_t, platform::win32::kObjectKinds> Outstanding() {
    return {CountOf(ObjectKind::kHandle).Outstanding(), CountOf(ObjectKind::kGdi).Outstanding(),
            CountOf(ObjectKind::kUser).Outstanding()};
  }
};

TEST_F(HandleBalance, StaysLevelHoweverOftenThePortsAreUsed) {
  UseEveryPort();
  const auto before = Outstanding();
  const std::uint64_t created = CountOf(ObjectKind::kHandle).created;
  for (int i = 0; i < 8; ++i) UseEveryPort();
  EXPECT_EQ(Outstanding(), before);
  EXPECT_GT(CountOf(ObjectKind::kHandle).created, created + 80);
}

TEST_F(HandleBalance, ReturnsToZeroWithTheMachine) {
  UseEveryPort();
  machine_->PutLibrary(In("Library.dll"));
  ports().libraries.ReadString(In("Library.dll"), 1);
  EXPECT_GT(CountOf(ObjectKind::kHandle).Outstanding(), 0u);
  EXPECT_GT(CountOf(ObjectKind::kUser).Outstanding(), 0u);
  machine_.reset();
  for (const std::uint64_t outstanding : Outstanding()) EXPECT_EQ(outstanding, 0u);
}

}  // namespace
