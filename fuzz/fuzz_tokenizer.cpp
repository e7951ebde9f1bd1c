// Records of fields. Input: the separator, a line end, then the text.
#include <string>

#include "fuzz/check.h"
#include "shared/tokenizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = fuzz::Text(data, size);
  const std::string separator(fuzz::Take(text, '\n'));
  shared::Tokenizer tokens;
  tokens.Init(text);
  tokens.setSeparator(separator);

  // One token more than there are separators; put together they are the text again.
  std::size_t separators = 0;
  if (!separator.empty()) {
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, at + separator.size())) {
      ++separators;
    }
  }
  std::string joined = tokens.nextToken();
  for (std::size_t at = 0; at < separators; ++at) joined += separator + tokens.nextToken();
  fuzz::Check(joined == text);
  fuzz::Check(tokens.nextToken().empty());
  fuzz::Check(tokens.nextToken().empty());
  return 0;
}
