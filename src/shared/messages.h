// The product's own question box, as the rooms below the windows see it.
#pragma once

#include <string_view>

namespace shared {

// Keyword of the box's picture.
enum class MessagePicture { kInfo, kWarn, kQuestion };

struct Message {
  std::string_view text;
  std::string_view first_caption = "OK";
  std::string_view second_caption = "Close";
  bool show_first = true;
  bool show_second = true;
  MessagePicture picture = MessagePicture::kInfo;
  std::string_view title = {};  // caption of the window; empty for the product's own
  bool file_size_note = false;  // with the note on the size of files in continuous backup
};

class Messages {
 public:
  virtual ~Messages() = default;

  // Shows the box and waits, with timers running, until it is answered: true for the first button.
  virtual bool ShowMessage(const Message& message) = 0;

  // Takes away a box that is open, as if it were closed; nothing without one.
  virtual void Dismiss() {}
};

}  // namespace shared
