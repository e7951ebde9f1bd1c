// Mailid.txt as anybody may have written it. A file that this system could have written comes back
// byte for byte, and writing twice changes nothing more.
#include "fuzz/check.h"
#include "fuzz/lines.h"
#include "platform/memory/machine.h"
#include "schedule/backup_set_list.h"
#include "schedule/line_file.h"
#include "schedule/mail_list.h"
#include "shared/convert.h"

namespace {

constexpr std::string_view kPath = "C:\\Mailid.txt";

bool HasBlankLine(std::string_view text) {
  for (const std::string& line : schedule::LinesOf(text)) {
    if (shared::Trim(line).empty()) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Text(data, size);
  platform::memory::Machine machine;
  machine.journal().Keep(false);
  platform::Files& files = machine.platform().files;
  machine.files().Put(kPath, text);

  std::vector<std::string> addresses;
  fuzz::Check(schedule::ReadMailList(files, addresses, kPath));
  fuzz::Check(machine.files().Content(kPath) == text);
  fuzz::Check(schedule::WriteMailList(files, addresses, kPath));
  const std::string once = machine.files().Content(kPath);
  if (fuzz::IsWellFormed(text) && !HasBlankLine(text)) fuzz::Check(once == text);
  fuzz::Check(schedule::WriteMailList(files, addresses, kPath));
  fuzz::Check(machine.files().Content(kPath) == once);

  fuzz::Check(schedule::SaveBackupSet(files, kPath, "a@b.c", ";value"));
  fuzz::Check(machine.files().Content(kPath).ends_with("a@b.c;value\r\n"));
  return 0;
}
