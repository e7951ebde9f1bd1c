// The registry. Every call opens and closes its key.
//
// Key paths have backslashes and no leading one; names are compared without regard to case. Where
// the error's number is part of what callers show, it is returned as the system gives it (0 is
// success). One thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

enum class Hive { kCurrentUser, kLocalMachine };

// The system's own numbers of value types.
enum class RegistryType : std::uint32_t { kNone = 0, kText = 1, kBinary = 3, kNumber = 4 };

inline constexpr std::uint32_t kRegistrySuccess = 0;
inline constexpr std::uint32_t kRegistryNotFound = 2;
inline constexpr std::uint32_t kRegistryAccessDenied = 5;
inline constexpr std::uint32_t kRegistryMoreData = 234;

// How much of a key a call asks for: some callers ask for everything, and fail where reading would
// be allowed.
enum class RegistryAccess { kRead, kAll };

struct RegistryValue {
  RegistryType type = RegistryType::kNone;
  std::string bytes;  // kText and kBinary, as stored: a text with the NULs that it holds, the final
                      // one included
  std::uint32_t number = 0;  // kNumber
};

struct RegistryResult {
  bool key_opened = false;
  std::uint32_t error = kRegistrySuccess;  // of opening the key, or of the query
  RegistryValue value;                     // valid when error is kRegistrySuccess
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Reads one value of at most `buffer` bytes; a longer one fails with kRegistryMoreData.
  virtual RegistryResult Read(Hive hive, std::string_view key, std::string_view name,
                              std::size_t buffer, RegistryAccess access) = 0;

  // Makes the key and its parents where missing. Returns 0 or the error.
  virtual std::uint32_t CreateKey(Hive hive, std::string_view key) = 0;

  // Sets a value of a key that must exist. Returns 0 or the error. Text is stored as `value.bytes`
  // stands: the caller puts the final NUL.
  virtual std::uint32_t Write(Hive hive, std::string_view key, std::string_view name,
                              const RegistryValue& value) = 0;

  // Writes the key through to the disk. Returns 0 or the error.
  virtual std::uint32_t Flush(Hive hive, std::string_view key) = 0;
};

}  // namespace platform
