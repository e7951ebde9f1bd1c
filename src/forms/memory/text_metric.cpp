#include "forms/memory/text_metric.h"

#include <algorithm>

namespace forms::memory {
namespace {

// Units of a font of 9 points, grown in proportion.
constexpr int kReferencePoints = 9;
constexpr int kCharacterWidth = 6;
constexpr int kBoldCharacterWidth = 7;
constexpr int kLineHeight = 16;

int Scaled(int units, Font font) {
  return (units * font.points + 8) / kReferencePoints;
}

class Measurer {
 public:
  Measurer(Font font, int width)
      : character_(Scaled(font.bold ? kBoldCharacterWidth : kCharacterWidth, font)),
        width_(width) {}

  void AddWord(int characters, bool behind_blank) {
    int word = characters * character_;
    const int blank = behind_blank && line_ > 0 ? character_ : 0;
    if (width_ > 0 && line_ > 0 && line_ + blank + word > width_) EndLine();
    const int whole_line = width_ / character_ * character_;
    for (; width_ > 0 && whole_line > 0 && word > width_; word -= whole_line) {
      line_ = whole_line;
      EndLine();
    }
    line_ += (line_ > 0 ? blank : 0) + word;
  }
  void EndLine() {
    widest_ = std::max(widest_, line_);
    line_ = 0;
    ++lines_;
  }
  int Lines() const { return lines_; }
  int Widest() const { return widest_; }

 private:
  const int character_;
  const int width_;
  int line_ = 0;
  int lines_ = 0;
  int widest_ = 0;
};

}  // namespace

Size MeasureText(std::string_view text, Font font, int width) {
  Measurer measurer(font, width);
  int word = 0;
  bool behind_blank = false;
  for (const char character : text) {
    if (character != ' ' && character != '\n') {
      word += character == '\r' ? 0 : 1;
      continue;
    }
    measurer.AddWord(word, behind_blank);
    behind_blank = character == ' ';
    word = 0;
    if (character == '\n') measurer.EndLine();
  }
  measurer.AddWord(word, behind_blank);
  measurer.EndLine();
  return {measurer.Widest(), measurer.Lines() * Scaled(kLineHeight, font)};
}

}  // namespace forms::memory
