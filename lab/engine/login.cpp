#include "lab/engine/login.h"

#include "lab/engine/moments.h"
#include "lab/engine/schedule_file.h"
#include "shared/file_names.h"
#include "shared/keys.h"

namespace lab {
namespace {

platform::RegistryValue Number(std::uint32_t number) {
  return {platform::RegistryType::kNumber, "", number};
}

platform::RegistryValue Text(std::string_view text) {
  return {platform::RegistryType::kText, std::string(text) + '\0', 0};
}

}  // namespace

void LogIn(const Ports& ports, platform::Registry& registry, const Places& places,
           std::string_view user) {
  const std::string machine_ini = places.UserNameIni();
  ports.files.MakeFolder(places.UserFolder(user));
  ports.profile_files.WriteText(machine_ini, shared::sections::kRegistry,
                                shared::keys::kDefaultUserName, Stored(user));
  ports.profile_files.WriteText(machine_ini, shared::sections::kRegistry, shared::keys::kTray, "0");
  ports.profile_files.WriteText(machine_ini, shared::sections::kTolvex, shared::keys::kInteractive,
                                user);
  // Nothing runs, and the background process may be started.
  ports.profile_files.WriteText(machine_ini, shared::sections::kTolvex, shared::keys::kStandard,
                                "1");
  ports.profile_files.WriteText(machine_ini, shared::sections::kTolvex, shared::keys::kStarted,
                                "0");
  const struct {
    std::string_view key;
    std::string_view value;
  } settings[] = {{shared::keys::kUserName, user},
                  {shared::keys::kPassword, "secret"},
                  {shared::keys::kAuthenticated, "1"},
                  {shared::keys::kFirstUser, "FALSE"},
                  {shared::keys::kScheduleDisable, "FALSE"}};
  for (const auto& setting : settings) {
    ports.profile_files.WriteText(places.Profile(user), shared::sections::kTolvex,
                                  Stored(setting.key), Stored(setting.value));
  }

  const std::string root = std::string(shared::registry::kRoot) + places.product_folder;
  const std::string connection = root + std::string(shared::registry::kConnectionParameters);
  registry.CreateKey(platform::Hive::kCurrentUser, root);
  registry.Write(platform::Hive::kCurrentUser, root, shared::registry::kInstalledFirst, Text("1"));
  const std::string application = root + std::string(shared::registry::kApplication);
  registry.CreateKey(platform::Hive::kCurrentUser, application);
  registry.Write(platform::Hive::kCurrentUser, application, shared::registry::kVersion,
                 Text("1.0.0"));
  registry.CreateKey(platform::Hive::kCurrentUser, connection);
  registry.Write(platform::Hive::kCurrentUser, connection, shared::registry::kConnectionStatus,
                 Number(1));
}

void PutDailySchedule(const Ports& ports, const Places& places, std::string_view user,
                      const platform::LocalTime& start) {
  ScheduleLine record(kScheduleFields);
  record[kRecordNo] = "1";
  record[kBackupSetName] = "tventbkupjob";
  record[kStartDateTime] = DateTimeText(start);
  record[kCreatedDateTime] = DateTimeText(start);
  record[kMonthDay] = "3";
  record[kCarriedValue] = "1";
  record[kMailNotifyMode] = "3";
  record[kMailLogFlag] = "0";
  record[kSortKey] = SortKeyText(start);
  record[kFrequencyCode] = "6";
  record[kWeekDayMask] = "1111111";
  ports.files.Replace(places.InUserFolder(user, shared::files::kScheduleData),
                      "0\r\n" + JoinScheduleLine(record) + "\r\n");
}

}  // namespace lab
