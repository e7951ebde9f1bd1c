// The product's own question box: a message, a picture, and one or two buttons.
#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace forms {

class frmGeneralMessage : public Form {
 public:
  // `answer` takes what the user answered; it must outlive the box.
  frmGeneralMessage(FormHost& host, bool& answer);
  ~frmGeneralMessage() override { Unload(); }

  // Shows the box over `owner` (null: nothing) and waits, with timers running, until it is
  // answered. Returns `answer`: true for the first button. A box that is closed any other way is
  // false. `picture_key` is "info", "warn" or "question"; any other leaves the picture out.
  bool ShowMessage(std::string_view text, std::string_view first_caption,
                   std::string_view second_caption, bool show_first, bool show_second,
                   std::string_view picture_key, Form* owner);

  // The same with a caption for the window.
  bool ShowMessageTitled(std::string_view caption, std::string_view text,
                         std::string_view first_caption, std::string_view second_caption,
                         bool show_first, bool show_second, std::string_view picture_key,
                         Form* owner);

  // Adds the note on the size of files, for the question on continuous backup.
  void ShowNote();

 private:
  void Answer(bool answer);
  void Highlight(bool first, bool second);
  bool ContinueKey(Key key);
  bool CloseKey(Key key);

  bool& answer_;
  Label Label2{*this, "Label2", "Sorvane", LabelStyle::kTitle};
  Picture Image2{*this, "Image2", "close", {20, 20}};
  Picture Image4{*this, "Image4", "info", {32, 32}};
  Label Label1{*this, "Label1", ""};
  Label lblnote{*this, "lblnote", "Note:", LabelStyle::kStrong};
  Label lblcdp{*this, "lblcdp", "To limit resources used for CDP, file sizes limited to",
               LabelStyle::kMuted};
  Label Label3{*this, "Label3", "500MB or lower are picked up for backup. ", LabelStyle::kMuted};
  Button Continue{*this, "Continue", "OK", ButtonRole::kDefault};
  Button IDCancel{*this, "IDCancel", "Close", ButtonRole::kCancel};
  TextBox TextCont{*this, "TextCont", {}, TextBoxStyle::kFocusCatcher};
  TextBox TextClose{*this, "TextClose", {}, TextBoxStyle::kFocusCatcher};
  Picture Image1{*this, "Image1", "Small Btn1", {theme::kButtonWidth, theme::kButtonHeight}};
  Picture Image3{*this, "Image3", "Small Btn1", {theme::kButtonWidth, theme::kButtonHeight}};
  Frame fraTitle{*this, "fraTitle", theme::kWindow};
  Frame fraNote{*this, "fraNote"};
  Frame fraButtons{*this, "fraButtons", theme::kFooter};
};

}  // namespace forms
