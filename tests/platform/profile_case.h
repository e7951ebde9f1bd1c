// What the tables of the private-profile suites are made of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/platform/contract_test.h"

class ProfileContract : public ContractTest {
 protected:
  // Makes `text` the file, as another program would.
  void Put(std::string_view text) { machine_->PutFile(file_, text); }

  std::string Read(std::string_view section, std::string_view key,
                   std::size_t buffer = platform::ProfileFiles::kBuffer) {
    return ports().profile_files.ReadText(file_, section, key, buffer);
  }

  std::int32_t ReadInt(std::string_view section, std::string_view key) {
    return ports().profile_files.ReadInt(file_, section, key);
  }

  bool Write(std::string_view section, std::string_view key, std::string_view value) {
    return ports().profile_files.WriteText(file_, section, key, value);
  }

  std::string Bytes() { return machine_->FileBytes(file_).value_or("(no file)"); }

  // The lines that hold anything. Where blank lines stand after a write is the system's affair.
  std::vector<std::string> Lines() {
    std::vector<std::string> lines(1);
    for (const char character : Bytes()) {
      if (character != '\r' && character != '\n') {
        lines.back() += character;
      } else if (!lines.back().empty()) {
        lines.emplace_back();
      }
    }
    if (lines.back().empty()) lines.pop_back();
    return lines;
  }

  std::string file_ = In("Profile.ini");
};

using LineList = std::vector<std::string>;

// Text with NULs in it.
template <std::size_t size>
std::string WithNuls(const char (&text)[size]) {
  return {text, size - 1};
}
