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
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return SmallLetter(a) == SmallLetter(b); });
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
  if (!IsWide(text)) {
    SetAnsiValue(text, TrimProfileBlanks(section), TrimProfileBlanks(key), value);
  } else {
    std::string narrowed = AnsiOfBytes(text);
    SetAnsiValue(narrowed, TrimProfileBlanks(section), TrimProfileBlanks(key), value);
    text = std::string(kByteOrderMark) + BytesOf(WideOf(narrowed));
  }
  Forget();
}

std::string_view ProfileIndex::FindValue(std::string_view text, std::string_view section,
                                         std::string_view key) const {
  const Section* in = FindSection(text, section);
  const Key* found = in == nullptr ? nullptr : FindKey(text, *in, key);
  return found == nullptr ? std::string_view{}
                          : UpToNul(text.substr(found->value.begin, found->value.length));
}

void ProfileIndex::SetAnsiValue(std::string& text, std::string_view section, std::string_view key,
                                std::string_view value) {
  Make(text);
  const std::string ending = "=" + std::string(value);
  const std::string line = std::string(key) + ending;
  const Section* in = FindSection(text, section);
  if (in == nullptr) {
    if (!text.empty() && !EndsLine(text.back())) text += "\r\n";
    text += "[" + std::string(section) + "]\r\n" + line + "\r\n";
  } else if (const Key* found = FindKey(text, *in, key)) {
    const std::size_t behind_name = found->name.begin + found->name.length;
    text.replace(behind_name, found->line_end - behind_name, ending);
  } else {
    const std::size_t behind =
        in->keys == 0 ? in->header_end : keys_[in->first_key + in->keys - 1].line_end;
    text.insert(behind, "\r\n" + line);
    if (behind + 2 + line.size() == text.size()) text += "\r\n";
  }
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
    keys_.push_back({{begin, name.size()}, SpanOf(text, value), line_end});
    ++sections_.back().keys;
  }
}

ProfileIndex::Span ProfileIndex::SpanOf(std::string_view text, std::string_view part) {
  return {static_cast<std::size_t>(part.data() - text.data()), part.size()};
}

const ProfileIndex::Section* ProfileIndex::FindSection(std::string_view text,
                                                       std::string_view name) const {
  for (const Section& section : sections_) {
    if (section.name.begin != 0 &&
        SameName(UpToNul(text.substr(section.name.begin, section.name.length)), name)) {
      return &section;
    }
  }
  return nullptr;
}

const ProfileIndex::Key* ProfileIndex::FindKey(std::string_view text, const Section& section,
                                               std::string_view name) const {
  for (std::size_t i = 0; i < section.keys; ++i) {
    const Key& key = keys_[section.first_key + i];
    if (SameName(UpToNul(text.substr(key.name.begin, key.name.length)), name)) return &key;
  }
  return nullptr;
}

}  // namespace platform::memory
