// What the engine's last result code, `RetValue`, means to the agent.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace status {

enum class ResultMeaning {
  kOther,  // nothing that the agent tells apart
  kQuotaExceeded,
  kAccountInactive,
  kCredentialsOutdated,
  kAccountState,  // shows no message of its own
  kProxyFailure,
  kAccountMaintenance,
  kServerMaintenance,
};

struct ResultCode {
  std::int32_t code;
  std::string_view text;  // the code as it stands in the file
  ResultMeaning meaning;
};

// All codes that are told apart.
std::span<const ResultCode> ResultCodes();

// Meaning of a code, kOther for one that the table does not hold.
ResultMeaning MeaningOf(std::int32_t code);

// The same for the text of `RetValue`, blanks around it removed. No number is kOther.
ResultMeaning MeaningOf(std::string_view ret_value);

}  // namespace status
