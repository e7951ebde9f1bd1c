#include "platform/memory/profile_index.h"

#include "platform/memory/text.h"

namespace platform::memory {
namespace {

bool IsBlank(char character) {
  return character == ' ' || character == '\x1A' || (character >= '\t' && character <= '\r');
}

bool EndsLine(char character) {
  return character == '\r' || character == '\n';
}

// What another program's reader, which ends texts at NUL, sees of it.
std::string_view UpToNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace

std::string_view TrimProfileBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view StripProfileQuotes(std::string_view value) {
  if (value.size() < 2) return value;
  const char quote = value.front();
  if ((quote != '"' && quote != '\'') || value.back() != quote) return value;
  return value.substr(1, value.size() - 2);
}

std::string_view ProfileIndex::Value(std::string_view text, std::string_view section,
                                     std::string_view key) {
  if (!made_) Make(text);
  const Section* in = FindSection(text, TrimProfileBlanks(section));
  if (in == nullptr) return {};
  const Key* found = FindKey(text, *in, TrimProfileBlanks(key));
  return found == nullptr ? std::string_view{}
                          : UpToNul(text.substr(found->value.begin, found->value.length));
}

void ProfileIndex::SetValue(std::string& text, std::string_view section, std::string_view key,
                            std::string_view value) {
  if (!made_) Make(text);
  section = TrimProfileBlanks(section);
  key = TrimProfileBlanks(key);
  const std::string line = std::string(key) + "=" + std::string(value);
  const Section* in = FindSection(text, section);
  if (in == nullptr) {
    if (!text.empty() && !EndsLine(text.back())) text += "\r\n";
    text += "[" + std::string(section) + "]\r\n" + line + "\r\n";
  } else if (const Key* found = FindKey(text, *in, key)) {
    text.replace(found->name.begin, found->line_end - found->name.begin, line);
  } else {
    const std::size_t behind =
        in->keys == 0 ? in->header_end : keys_[in->first_key + in->keys - 1].line_end;
    text.insert(behind, "\r\n" + line);
    if (behind + 2 + line.size() == text.size()) text += "\r\n";
  }
  Forget();
}

void ProfileIndex::Make(std::string_view text) {
  made_ = true;
  keys_.clear();
  sections_.assign(1, Section{});
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t end = at;
    while (end < text.size() && !EndsLine(text[end])) ++end;
    const std::string_view line = TrimProfileBlanks(text.substr(at, end - at));
    at = end + 1;
    if (line.empty()) continue;
    const auto begin = static_cast<std::size_t>(line.data() - text.data());
    const std::size_t line_end = begin + line.size();
    const std::size_t bracket = line[0] == '[' ? line.rfind(']') : std::string_view::npos;
    if (bracket != std::string_view::npos) {
      sections_.push_back({{begin + 1, bracket - 1}, keys_.size(), 0, line_end});
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string_view name = TrimProfileBlanks(line.substr(0, equals));
    Key key{{begin, name.size()}, {line_end, 0}, line_end};
    if (equals != std::string_view::npos) {
      const std::string_view value = TrimProfileBlanks(line.substr(equals + 1));
      key.value = {static_cast<std::size_t>(value.data() - text.data()), value.size()};
    }
    keys_.push_back(key);
    ++sections_.back().keys;
  }
}

const ProfileIndex::Section* ProfileIndex::FindSection(std::string_view text,
                                                       std::string_view name) const {
  for (const Section& section : sections_) {
    if (section.name.begin != 0 &&
        EqualIgnoreCase(UpToNul(text.substr(section.name.begin, section.name.length)), name)) {
      return &section;
    }
  }
  return nullptr;
}

const ProfileIndex::Key* ProfileIndex::FindKey(std::string_view text, const Section& section,
                                               std::string_view name) const {
  for (std::size_t i = 0; i < section.keys; ++i) {
    const Key& key = keys_[section.first_key + i];
    if (EqualIgnoreCase(UpToNul(text.substr(key.name.begin, key.name.length)), name)) return &key;
  }
  return nullptr;
}

}  // namespace platform::memory
