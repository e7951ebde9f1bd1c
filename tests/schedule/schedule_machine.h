// The schedule of the user "ann" on a machine in memory: the product of C:\Sorvane, 1 March 2024,
// 10:00, a Friday, month first.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/machine.h"
#include "schedule/locale_formats.h"
#include "shared/agent_state.h"
#include "shared/character_shift.h"
#include "shared/keys.h"

namespace schedule::testing {

inline constexpr std::string_view kCommon = "C:\\Sorvane\\SorvaneE\\";
inline constexpr std::string_view kUser = "C:\\Sorvane\\SorvaneEann\\";
inline constexpr std::string_view kSchedule = "C:\\Sorvane\\SorvaneEann\\scheduleData.txt";
inline constexpr std::string_view kMailIds = "C:\\Sorvane\\SorvaneEann\\Mailid.txt";
inline constexpr std::string_view kProfile = "C:\\Sorvane\\SorvaneEann\\SorvaneE.ini";
inline constexpr std::string_view kUserNameIni = "C:\\Sorvane\\UserName.ini";

// A line of the file: twelve fields, some of which tests choose.
inline std::string Line(std::string_view record_no, std::string_view name, std::string_view key,
                        std::string_view start = "03-02-2024 20:00:00") {
  std::string line;
  const std::string_view fields[] = {
      record_no, name, start, "03-01-2024 09:00:00", "3", "1", "", "1", "0", key, "6", "1111111"};
  for (const std::string_view field : fields) line.append(field).append("\b\b");
  return line.substr(0, line.size() - 2);
}

inline std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

class ScheduleMachine {
 public:
  ScheduleMachine() {
    state.InstallFolder = "C:\\Sorvane";
    state.ProductFolder = "SorvaneE";
    state.ProductNumber = 2;
    state.CurrentUser = "ann";
    machine.files().PutFolder("C:\\Sorvane\\SorvaneE");
    machine.files().PutFolder("C:\\Sorvane\\SorvaneEann");
    machine.files().PutIni(kUserNameIni, "Registry", "Default User name", Shifted("ann"));
    LoadLocaleFormats(ports().locale, state);
  }

  platform::Platform& ports() { return machine.platform(); }

  static std::string Shifted(std::string_view text) {
    return shared::ShiftCharacters(text, shared::kProfileShift).text;
  }

  // Texts of the user's locale, loaded as at start.
  void SetFormats(std::string_view short_date, std::string_view time,
                  std::string_view decimal = ".") {
    machine.locale().SetItem(platform::kLocaleShortDate, short_date);
    machine.locale().SetItem(platform::kLocaleTimeFormat, time);
    machine.locale().SetItem(platform::kLocaleDecimalSeparator, decimal);
    LoadLocaleFormats(ports().locale, state);
  }

  // The profile: a shifted key, and a plain one of BackupStatus.
  void SetProfile(std::string_view key, std::string_view value) {
    machine.files().PutIni(kProfile, "Tolvex", Shifted(key), Shifted(value));
  }
  void SetStatus(std::string_view key, std::string_view value) {
    machine.files().PutIni(kProfile, "BackupStatus", key, value);
  }

  void PutSchedule(const std::vector<std::string>& lines) {
    machine.files().Put(kSchedule, Lines(lines));
  }
  std::string Schedule() { return machine.files().Content(kSchedule); }
  bool HasSchedule() { return machine.files().Has(kSchedule); }

  platform::memory::Machine machine;
  shared::AgentState state;
};

}  // namespace schedule::testing
