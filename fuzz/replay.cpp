// Runs a fuzz target over the files of its corpus, without the fuzzer: what was found once stays
// found, with every compiler.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
  int files = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string input{std::istreambuf_iterator<char>(file), {}};
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
      ++files;
    }
  }
  std::printf("%d files\n", files);
  return files > 0 ? 0 : 1;
}
