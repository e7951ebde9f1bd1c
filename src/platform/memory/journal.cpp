#include "platform/memory/journal.h"

#include <algorithm>

#include "platform/memory/timeline.h"

namespace platform::memory {

void Journal::Add(std::uint64_t time, std::string_view who, std::string_view category,
                  std::string text) {
  if (!kept_) return;
  entries_.push_back({time, std::string(who), std::string(category), std::move(text)});
}

std::vector<std::string> Journal::Lines() const {
  std::vector<std::string> lines;
  lines.reserve(entries_.size());
  for (const JournalEntry& entry : entries_) {
    lines.push_back(std::to_string(entry.time) + " " + entry.who + " " + entry.category + " " +
                    entry.text);
  }
  return lines;
}

std::string Journal::Text() const {
  std::string text;
  for (const std::string& line : Lines()) text += line + "\n";
  return text;
}

std::vector<std::string> Journal::Excerpt(std::string_view category) const {
  std::vector<std::string> texts;
  for (const JournalEntry& entry : entries_) {
    if (entry.category == category && entry.who == kAgent) texts.push_back(entry.text);
  }
  return texts;
}

std::vector<std::string> Journal::Excerpt(const std::vector<std::string_view>& categories) const {
  std::vector<std::string> texts;
  for (const JournalEntry& entry : entries_) {
    if (std::find(categories.begin(), categories.end(), entry.category) != categories.end()) {
      texts.push_back(entry.category + " " + entry.text);
    }
  }
  return texts;
}

std::size_t Journal::Count(std::string_view category, std::string_view part) const {
  return static_cast<std::size_t>(
      std::count_if(entries_.begin(), entries_.end(), [&](const JournalEntry& entry) {
        return entry.category == category && entry.text.find(part) != std::string::npos;
      }));
}

}  // namespace platform::memory
