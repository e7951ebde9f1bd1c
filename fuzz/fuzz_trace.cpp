// A trace file that another program wrote. Input: a line to append, then the file.
#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "shared/text_file.h"
#include "shared/trace.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view file = fuzz::Text(data, size);
  const std::string_view line = fuzz::Take(file, '\n');
  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  constexpr std::string_view kPath = "C:\\Sorvane\\SorvaneE\\TrayTraceFile.txt";
  machine.files().Put(kPath, file);

  // Reading takes any bytes.
  machine.files().Utf16Content(kPath);
  const std::string first = shared::ReadFirstLine(machine.platform().files, kPath);
  fuzz::Check(first.find_first_of("\r\n") == std::string::npos);
  fuzz::Check(first.size() <= shared::kTextFileLimit);

  // What was there stays, and the line stands behind it.
  shared::Trace(machine.platform(), state).WriteTrace(line);
  const std::string after = machine.files().Content(kPath);
  fuzz::Check(after.starts_with(file));
  fuzz::Check(after.ends_with(std::string_view("\r\0\n\0", 4)));
  return 0;
}
