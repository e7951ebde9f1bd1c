#include "schedule/job_kinds.h"

#include <algorithm>
#include <array>

namespace schedule {
namespace {

constexpr std::array kKinds = {
    JobKind{"1", kDefaultSet, "", "1"},
    JobKind{"2", "SQLSERVERBACKUP", "SQL Server", "2"},
    JobKind{"3", "SYSTEMSTATEBACKUP", "System State", "3"},
    JobKind{"4", "EXCHANGEBACKUP", "Exchange Server", "4"},
    JobKind{"5", "EXCHANGEBRICKBACKUP", "Exchange Brick Level", ""},
};

struct JobType {
  std::int16_t type;
  std::string_view keyword;
};

constexpr std::array kTypes = {
    JobType{1, kDefaultSet},         JobType{4, kDefaultSet},      JobType{2, "SQLSERVERBACKUP"},
    JobType{5, "SYSTEMSTATEBACKUP"}, JobType{6, "EXCHANGEBACKUP"},
};

constexpr std::array<std::string_view, 5> kDeletable = {
    kDefaultSet, "SQLSERVERBACKUP", "SYSTEMSTATEBACKUP", "EXCHANGEBACKUP", "TVEXCHANGEBRICKBACKUP",
};

const JobKind* Find(std::string_view JobKind::*field, std::string_view text) {
  const auto found = std::ranges::find(kKinds, text, field);
  return found == kKinds.end() ? nullptr : &*found;
}

}  // namespace

std::span<const JobKind> JobKinds() {
  return kKinds;
}

const JobKind* FindJobKind(std::string_view keyword) {
  return Find(&JobKind::keyword, keyword);
}

const JobKind* FindJobKindByCode(std::string_view code) {
  return Find(&JobKind::code, code);
}

const JobKind* FindJobKindByType(std::int16_t job_type) {
  const auto found = std::ranges::find(kTypes, job_type, &JobType::type);
  return found == kTypes.end() ? nullptr : FindJobKind(found->keyword);
}

std::string_view TitleOfJob(std::string_view keyword) {
  return keyword == kDefaultSet ? kDefaultSetTitle : keyword;
}

bool IsDeletableFromList(std::string_view keyword) {
  return std::ranges::find(kDeletable, keyword) != kDeletable.end();
}

}  // namespace schedule
