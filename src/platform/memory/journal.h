// What happened on the machine, one line for each effect, in order.
//
// Reads leave no line. Two runs of one story with one seed give byte-equal journals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform::memory {

struct JournalEntry {
  std::uint64_t time = 0;  // virtual milliseconds since the machine was made
  std::string who;         // "agent", "fate" for verbs of the test, or an actor's name
  std::string category;    // "file", "profile", "registry", "process", "shell", "icon", "box", ...
  std::string text;        // what was done, for instance "tip Ready"
};

class Journal {
 public:
  void Add(std::uint64_t time, std::string_view who, std::string_view category, std::string text);

  // A journal that is not kept stays as it is; long simulations save their memory so.
  void Keep(bool kept) { kept_ = kept; }
  bool kept() const { return kept_; }

  const std::vector<JournalEntry>& entries() const { return entries_; }
  void Clear() { entries_.clear(); }

  // Each entry as "<time> <who> <category> <text>".
  std::vector<std::string> Lines() const;
  // All lines, each ended by "\n".
  std::string Text() const;

  // The texts of one category that are the agent's doing, in order.
  std::vector<std::string> Excerpt(std::string_view category) const;
  // The lines of several categories, whoever did it: "<category> <text>".
  std::vector<std::string> Excerpt(const std::vector<std::string_view>& categories) const;
  // Entries of the category, by anybody, whose text contains `part`.
  std::size_t Count(std::string_view category, std::string_view part = {}) const;

 private:
  bool kept_ = true;
  std::vector<JournalEntry> entries_;
};

}  // namespace platform::memory
