// Splits a text at a separator.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace shared {

// Call Init, then setSeparator, then nextToken for each token.
class Tokenizer {
 public:
  // Keeps the text and goes back to its start. There are no tokens until setSeparator.
  void Init(std::string_view text);

  // Keeps the separator, one blank before the first call, and splits the text at each of its
  // occurrences, compared byte by byte. An empty separator leaves the text whole; an empty text has
  // no token.
  void setSeparator(std::string_view separator);

  // The next token, or "" when all were given. An empty token and the end are alike: readers of
  // fixed records count.
  std::string nextToken();

 private:
  void Split();

  std::string text_;
  std::string separator_ = " ";
  std::vector<std::string> tokens_;
  std::size_t position_ = 0;
};

}  // namespace shared
