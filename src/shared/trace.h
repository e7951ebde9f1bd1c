// The trace files: UTF-16 text, opened and closed for each line. A line that cannot be written is
// lost.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

inline constexpr std::string_view kInformation = "  [INFORMATION] ";
inline constexpr std::string_view kError = "   [ERROR] ";

class Trace {
 public:
  Trace(platform::Platform& machine, AgentState& state);

  // Appends the text as it stands to TrayTraceFile.txt of UserFolder.
  void WriteTrace(std::string_view text);

  // The same, for code outside the forms.
  void WriteTrayTrace(std::string_view text) { WriteTrace(text); }

  // WriteTrace of the stamp "mm-dd-yyyy HH:mm:ss" and the text: the usual form of a line. `text`
  // carries its own prefix (kInformation, kError or one of the few others).
  void WriteStamped(std::string_view text);

  // WriteStamped with kInformation or kError in front of the message.
  void WriteInformation(std::string_view message) { WriteStamped(Prefixed(kInformation, message)); }
  void WriteError(std::string_view message) { WriteStamped(Prefixed(kError, message)); }

  // Reads the user afresh into CurrentUser, then appends the text to SerTraceFile.txt of
  // UserFolder.
  void WriteSerTrace(std::string_view text);

  // Appends a stamp, " : " and the text to TrayTraceFile.txt of InstallFolder; deletes that file
  // once it is larger than 2097152 bytes.
  void WriteInstallTrace(std::string_view text);

  // Appends a banner: 42 blanks, 72 hyphens, the text, 72 hyphens, 42 blanks, a line each.
  void WriteGeneralMessage(std::string_view text);

 private:
  static std::string Prefixed(std::string_view prefix, std::string_view message) {
    return std::string(prefix).append(message);
  }

  platform::Platform& machine_;
  AgentState& state_;
};

// "mm-dd-yyyy HH:mm:ss"
std::string FormatStamp(const platform::LocalTime& time);

}  // namespace shared
