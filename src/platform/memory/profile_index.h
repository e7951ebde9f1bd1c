// The text of a private-profile file as the system reads it.
//
// A line ends at a CR or a LF; blanks (9 to 13, 26 and 32) at both ends do not count, empty lines
// are nothing. "[name]" up to the last "]" begins a section; one without a name is never found. In
// any other line the name stands before the first "=", the value after it. Blanks around names and
// values do not count; names are compared without regard to the case of ASCII letters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform::memory {

class ProfileIndex {
 public:
  // The text changed.
  void Forget() { made_ = false; }

  // The value of the first key of that name in the first section of that name, with its quotes;
  // empty when there is none. Good until the next call or change of `text`. Text that begins with
  // the byte-order mark of UTF-16 is taken as such, here and below.
  std::string_view Value(std::string_view text, std::string_view section, std::string_view key);

  // Sets one key in `text`, leaving every other line as it is. The line takes the place of the one
  // that Value reads, or stands behind the last line of the section, or in a new section at the
  // end.
  void SetValue(std::string& text, std::string_view section, std::string_view key,
                std::string_view value);

 private:
  struct Span {
    std::size_t begin = 0;
    std::size_t length = 0;
  };
  struct Key {
    Span name;
    Span value;
    std::size_t line_end = 0;  // behind the last character that is no blank
  };
  struct Section {
    Span name;
    std::size_t first_key = 0;
    std::size_t keys = 0;
    std::size_t header_end = 0;
  };

  // Where `part` lies in `text`, up to its first NUL.
  static Span SpanOf(std::string_view text, std::string_view part);
  void Make(std::string_view text);
  const Section* FindSection(std::string_view text, std::string_view name) const;
  const Key* FindKey(std::string_view text, const Section& section, std::string_view name) const;

  std::string_view FindValue(std::string_view text, std::string_view section,
                             std::string_view key) const;
  void SetAnsiValue(std::string& text, std::string_view section, std::string_view key,
                    std::string_view value);

  bool made_ = false;
  bool wide_ = false;
  std::string narrowed_;  // wide text in ANSI
  std::vector<Section> sections_;
  std::vector<Key> keys_;
};

// Without the blanks at both ends.
std::string_view TrimProfileBlanks(std::string_view text);

// Without one pair of quotes of either kind.
std::string_view StripProfileQuotes(std::string_view value);

}  // namespace platform::memory
