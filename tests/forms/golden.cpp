#include "tests/forms/golden.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace forms::testing {

std::string Golden(std::string_view name, const std::string& text) {
  const std::string path = SORVANE_GOLDEN_FOLDER "/" + std::string(name) + ".txt";
  if (std::getenv("SORVANE_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(path, std::ios::binary) << text;
    return text;
  }
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace forms::testing
