#include "status/result_codes.h"

#include <algorithm>
#include <array>

#include "shared/convert.h"

namespace status {
namespace {

constexpr std::array kResultCodes = {
    ResultCode{-432, "-432", ResultMeaning::kQuotaExceeded},
    ResultCode{-514, "-514", ResultMeaning::kAccountInactive},
    ResultCode{-507, "-507", ResultMeaning::kAccountInactive},
    ResultCode{-403, "-403", ResultMeaning::kCredentialsOutdated},
    ResultCode{-416, "-416", ResultMeaning::kAccountState},
    ResultCode{-405, "-405", ResultMeaning::kAccountState},
    ResultCode{-12008, "-12008", ResultMeaning::kProxyFailure},
    ResultCode{-12009, "-12009", ResultMeaning::kProxyFailure},
    ResultCode{-12010, "-12010", ResultMeaning::kProxyFailure},
    ResultCode{-504, "-504", ResultMeaning::kAccountMaintenance},
    ResultCode{-511, "-511", ResultMeaning::kServerMaintenance},
};

}  // namespace

std::span<const ResultCode> ResultCodes() {
  return kResultCodes;
}

ResultMeaning MeaningOf(std::int32_t code) {
  const auto found = std::ranges::find(kResultCodes, code, &ResultCode::code);
  return found == kResultCodes.end() ? ResultMeaning::kOther : found->meaning;
}

ResultMeaning MeaningOf(std::string_view ret_value) {
  const auto code = shared::ToInt32(ret_value);
  return code ? MeaningOf(*code) : ResultMeaning::kOther;
}

}  // namespace status
