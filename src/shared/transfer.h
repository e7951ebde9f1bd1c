// Profile access under the names that every room knows: each operation fixes a file, a section and
// which of key and value pass through the shift.
//
// "enc" below: that part is shifted in the file. A missing value is ""; a failed write is lost.
// Values that are stored shifted under a shifted key never appear in the file in readable form.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"

namespace shared {

class clsTransfer {
 public:
  clsTransfer(platform::Platform& machine, AgentState& state);

  // The profile, any section, plain: the work-horse for plain keys.
  void Trf_WriteUserProfileDefault(std::string_view section, std::string_view key,
                                   std::string_view value);
  // The profile, `Tolvex`, enc key and value. First sets CurrentUser to `Interactive` of
  // UserName.ini, so that the write goes to the user whom the client acts for.
  void Trf_WriteUserProfile(std::string_view key, std::string_view value);
  // The profile, `Tolvex`, enc key, plain value.
  void Trf_WriteUserProfileWithoutEncrypt(std::string_view key, std::string_view value);
  // `Proxy` of the profile by its path relative to the current directory, enc key and value.
  void Trf_WriteProxyProfile(std::string_view key, std::string_view value);
  // `DateFormat`, relative path, enc key and value.
  void Trf_WriteDateFormatProfile(std::string_view key, std::string_view value);
  // `Proxy`, relative path, enc key and value.
  std::string Trf_ReadProxyProfile(std::string_view key);
  // Makes every missing folder along a path.
  void Trf_CreateLocalDir(std::string_view path);
  // SimpleAutoPath.ini of UserFolder, `AUTOFILEPATHS`; blanks trimmed.
  std::string ReadSimpleAutofileProfile(std::string_view key);
  // The profile, `Tolvex`, plain.
  void Trf_WriteUserProfileWithoutEncryptIdle(std::string_view key, std::string_view value);
  std::string Trf_ReadUserProfileIdle(std::string_view key);
  // The profile, `Tolvex`, enc key and value; decoded only when not empty.
  std::string Trf_ReadUserProfile(std::string_view key);
  // `Tolvex` by the relative path, plain key, enc value. Its writer uses another section: the two
  // do not meet.
  std::string Trf_ReadDateFormatProfile(std::string_view key);
  // UserName.ini, `Tolvex`, plain.
  std::string Trf_ReadUserNameProfile(std::string_view key);
  void Trf_WriteUserNameProfile(std::string_view key, std::string_view value);
  // The search file, `Tolvex`; the value passes through DecryptShareText.
  void Trf_WriteSearchUserNameProfile(std::string_view key, std::string_view value);
  // The search file, `SearchEnable`, plain.
  void Trf_WriteSearchProfile(std::string_view key, std::string_view value);
  // The profile, `Tolvex`, plain.
  std::string Trf_ReadUserProfileWithoutDecrypt(std::string_view key);
  void Trf_WriteUserNameProfileEmail(std::string_view key, std::string_view value);
  // The profile, any section, plain, cut at the first NUL.
  std::string Trf_ReadOutputValue(std::string_view section, std::string_view key);
  // The search file, `Tolvex`, plain.
  void Trf_WritePluginUserProfile(std::string_view key, std::string_view value);
  std::string Trf_ReadPluginUserProfile(std::string_view key);
  // UserName.ini, `PCInfo`, plain.
  std::string Trf_ReadUserNamePCInfo(std::string_view key);

 private:
  // Shifts key and value on their way to the file.
  void WriteShifted(const std::string& file, std::string_view section, std::string_view key,
                    std::string_view value);
  // The way back; an empty value as it is.
  std::string Decode(const std::string& stored);

  platform::Platform& machine_;
  AgentState& state_;
  ProfileStore store_;
};

}  // namespace shared
