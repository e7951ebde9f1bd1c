#include "platform/memory/profile_index.h"

#include <algorithm>
#include <optional>

#include "platform/memory/code_page.h"

namespace platform::memory {
namespace {

bool IsBlank(char character) {
  return character == ' ' || character == '\x1A' || (character >= '\t' && character <= '\r');
}

bool IsWide(std::string_view text) {
  return text.starts_with(kByteOrderMark);
}

bool EndsLine(char character) {
  return character == '\r' || character == '\n';
}

char SmallLetter(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 0x20) : character;
}

// Only the letters of ASCII are the same in both cases here.
bool SameName(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  for (std::size_t i = left.size(); i-- != 0;) {
    if (left[i] != right[i] && SmallLetter(left[i]) != SmallLetter(right[i])) return false;
  }
  return true;
}

// True when a line with this value reads as the value itself.
bool IsPlain(std::string_view value) {
  return TrimProfileBlanks(value).size() == value.size() &&
         value.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

// What another program's reader, which ends texts at NUL, sees of it.
std::string_view UpToNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

// The name in a line that begins a section; nothing for any other line.
std::optional<std::string_view> SectionName(std::string_view line) {
  if (line.front() != '[') return std::nullopt;
  const std::size_t bracket = line.rfind(']');
  if (bracket == std::string_view::npos) return std::nullopt;
  return TrimProfileBlanks(line.substr(1, bracket - 1));
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
  if (!made_) {
    wide_ = IsWide(text);
    if (wide_) narrowed_ = AnsiOfBytes(text);
    Make(wide_ ? narrowed_ : text);
  }
  return FindValue(wide_ ? narrowed_ : text, TrimProfileBlanks(section), TrimProfileBlanks(key));
}

void ProfileIndex::SetValue(std::string& text, std::string_view section, std::string_view key,
                            std::string_view value) {
  section = TrimProfileBlanks(section);
  key = TrimProfileBlanks(key);
  if (!IsWide(text)) {
    SetAnsiValue(text, section, key, value);
    return;
  }
  std::string narrowed = AnsiOfBytes(text);
  Forget();
  SetAnsiValue(narrowed, section, key, value);
  text = std::string(kByteOrderMark) + BytesOf(WideOf(narrowed));
  Forget();
}

std::string_view ProfileIndex::FindValue(std::string_view text, std::string_view section,
                                         std::string_view key) const {
  const Section* in = FindSection(text, section);
  const Key* found = in == nullptr ? nullptr : FindKey(text, *in, key);
  return found == nullptr ? std::string_view{}
                          : text.substr(found->value.begin, found->value.length);
}

void ProfileIndex::SetAnsiValue(std::string& text, std::string_view section, std::string_view key,
                                std::string_view value) {
  if (!made_ || wide_) Make(text);
  const Section* in = FindSection(text, section);
  const Key* found = in == nullptr ? nullptr : FindKey(text, *in, key);
  if (found != nullptr && found->value.length == value.size() && IsPlain(value)) {
    // Nothing moves: the index holds.
    text.replace(found->value.begin, value.size(), value);
    return;
  }
  const std::string ending = "=" + std::string(value);
  const std::string line = std::string(key) + ending;
  if (in == nullptr) {
    if (!text.empty() && !EndsLine(text.back())) text += "\r\n";
    text += "[" + std::string(section) + "]\r\n" + line + "\r\n";
  } else if (found != nullptr) {
    const std::size_t behind_name = found->name.begin + found->name.length;
    text.replace(behind_name, found->line_end - behind_name, ending);
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
    if (const auto section = SectionName(line)) {
      sections_.push_back({SpanOf(text, *section), keys_.size(), 0, line_end});
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string_view name = TrimProfileBlanks(line.substr(0, equals));
    const std::string_view value = equals == std::string_view::npos
                                       ? line.substr(line.size())
                                       : TrimProfileBlanks(line.substr(equals + 1));
    keys_.push_back({SpanOf(text, name), SpanOf(text, value), line_end});
    ++sections_.back().keys;
  }
}

ProfileIndex::Span ProfileIndex::SpanOf(std::string_view text, std::string_view part) {
  return {static_cast<std::size_t>(part.data() - text.data()), UpToNul(part).size()};
}

const ProfileIndex::Section* ProfileIndex::FindSection(std::string_view text,
                                                       std::string_view name) const {
  for (const Section& section : sections_) {
    if (section.name.begin != 0 &&
        SameName(text.substr(section.name.begin, section.name.length), name)) {
      return &section;
    }
  }
  return nullptr;
}

const ProfileIndex::Key* ProfileIndex::FindKey(std::string_view text, const Section& section,
                                               std::string_view name) const {
  for (std::size_t i = 0; i < section.keys; ++i) {
    const Key& key = keys_[section.first_key + i];
    if (SameName(text.substr(key.name.begin, key.name.length), name)) return &key;
  }
  return nullptr;
}

}  // namespace platform::memory
