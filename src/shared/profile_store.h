// Values of UserName.ini and of the user's profile ini, read through to the file on every call.
//
// A missing file, section or key reads as ""; a failed write is lost. Nothing is cached but
// CurrentUser in the state. `Registry` and `Tolvex` below are sections of UserName.ini; "the
// profile" is ProfileIni.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// Bytes used and allowed. A negative `used` means that the quota is unknown.
struct QuotaStatus {
  double used = -1.0;
  double max = 0.0;
};

class ProfileStore {
 public:
  ProfileStore(platform::Platform& machine, AgentState& state);

  // UserName.ini, `Registry`: trimmed, cut at NUL; when not empty decoded, trimmed and cut again.
  std::string ReadUserNameIni(std::string_view key);

  // The same without the decoding.
  std::string ReadUserNameIniPlain(std::string_view key);

  // UserName.ini, `Registry`, plain.
  void WriteUserNameIni(std::string_view key, std::string_view value);

  // UserName.ini, `Tolvex`, plain.
  std::string ReadUserNameProfile(std::string_view key);
  void WriteUserNameProfile(std::string_view key, std::string_view value);

  // UserName.ini, any section, as a whole number narrowed to 16 bits.
  std::int16_t ReadUserNameInt(std::string_view section, std::string_view key);

  // The profile, any section, plain.
  std::string ReadProfileKey(std::string_view section, std::string_view key);

  // The profile, any section, as a whole number narrowed to 16 bits; 0 when there is none.
  std::int16_t ReadProfileInt(std::string_view section, std::string_view key);

  // The profile, `Tolvex`: plain key, value decoded as by ReadUserNameIni.
  std::string ReadProfileKeyDecrypted(std::string_view key);

  // The profile, `QuotaStatus`: `Used` and `Max`. A `Max` of "1" is one gibibyte above `Used`.
  QuotaStatus ReadQuotaStatus();

  // Reads `Default User name` into CurrentUser and returns it.
  const std::string& RefreshCurrentUser();

  // Shift of one stored value. A code that leaves the range ends the result there and is traced.
  std::string EncryptProfileText(std::string_view text);
  // The way back; messages are pumped after each character, so that the tray stays alive.
  std::string DecryptProfileText(std::string_view text);
  std::string EncryptShareText(std::string_view text);
  std::string DecryptShareText(std::string_view text);

 private:
  // A stored value decoded, trimmed and cut at NUL; an empty one as it is.
  std::string DecodeStored(const std::string& stored);

  platform::Platform& machine_;
  AgentState& state_;
};

}  // namespace shared
