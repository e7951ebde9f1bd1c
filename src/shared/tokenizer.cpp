#include "shared/tokenizer.h"

namespace shared {

void Tokenizer::Init(std::string_view text) {
  text_ = text;
  tokens_.clear();
  position_ = 0;
}

void Tokenizer::setSeparator(std::string_view separator) {
  separator_ = separator;
  Split();
}

std::string Tokenizer::nextToken() {
  if (position_ >= tokens_.size()) return {};
  return tokens_[position_++];
}

void Tokenizer::Split() {
  tokens_.clear();
  position_ = 0;
  if (text_.empty()) return;
  std::string_view rest = text_;
  if (!separator_.empty()) {
    for (std::size_t hit = rest.find(separator_); hit != std::string_view::npos;
         hit = rest.find(separator_)) {
      tokens_.emplace_back(rest.substr(0, hit));
      rest.remove_prefix(hit + separator_.size());
    }
  }
  tokens_.emplace_back(rest);
}

}  // namespace shared
