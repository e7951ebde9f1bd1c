#include "forms/frm_general_message.h"

#include "forms/bands.h"

namespace forms {
namespace {

constexpr std::string_view kCaption = "Sorvane";
constexpr std::string_view kPlainPicture = "Small Btn1";
constexpr std::string_view kHighlightedPicture = "Small Btn2";
constexpr int kWidth = 420;
constexpr int kTextWidth = 320;

constexpr FormDesign kDesign = {
    .name = "frmGeneralMessage",
    .caption = kCaption,
    .width = kWidth,
    .placement = Placement::kCentreOfOwner,
    .on_top = true,
    .corner_radius = theme::kCornerRadius,
};

void ShowAll(std::initializer_list<Control*> controls, bool show) {
  for (Control* control : controls) control->SetVisible(show);
}

}  // namespace

frmGeneralMessage::frmGeneralMessage(FormHost& host, bool& answer)
    : Form(host, kDesign), answer_(answer) {
  fraNote.Hold({&lblnote, &lblcdp, &Label3});
  fraButtons.Hold({&Continue, &IDCancel, &TextCont, &TextClose, &Image1, &Image3});
  fraNote.SetVisible(false);
  // The text boxes stand for the buttons at the keyboard.
  Continue.SetTabStop(false);
  IDCancel.SetTabStop(false);

  Continue.on_click = [this] { Answer(true); };
  Image1.on_click = Continue.on_click;
  IDCancel.on_click = [this] { Answer(false); };
  Image2.on_click = IDCancel.on_click;
  Image3.on_click = IDCancel.on_click;
  on_close = IDCancel.on_click;
  TextCont.on_key = [this](Key key) { return ContinueKey(key); };
  TextClose.on_key = [this](Key key) { return CloseKey(key); };
  TextCont.on_focus = [this] { Highlight(true, false); };
  TextClose.on_focus = [this] { Highlight(false, true); };

  SetLayout(Bands({
      TitleBand(fraTitle, Label2, Image2),
      BodyBand({
          Line({Item(Image4).AtTop(),
                Stack({Item(Label1).Width(kTextWidth).Grow(),
                       Pile({Item(fraNote),
                             Stack({Item(lblnote), Item(lblcdp), Item(Label3)}).Gap(2)})})
                    .Gap(theme::kMargin)
                    .Grow()})
              .Gap(theme::kMargin),
      }),
      ButtonBand(fraButtons, {Pile({Item(Continue), Item(Image1), Item(TextCont).Height(1)}),
                              Pile({Item(IDCancel), Item(Image3), Item(TextClose)})}),
  }));
}

bool frmGeneralMessage::ShowMessage(std::string_view text, std::string_view first_caption,
                                    std::string_view second_caption, bool show_first,
                                    bool show_second, std::string_view picture_key, Form* owner) {
  return ShowMessageTitled(kCaption, text, first_caption, second_caption, show_first, show_second,
                           picture_key, owner);
}

bool frmGeneralMessage::ShowMessageTitled(std::string_view caption, std::string_view text,
                                          std::string_view first_caption,
                                          std::string_view second_caption, bool show_first,
                                          bool show_second, std::string_view picture_key,
                                          Form* owner) {
  answer_ = false;
  SetCaption(caption);
  Label2.SetText(caption);
  Label1.SetText(text);
  Continue.SetText(first_caption);
  IDCancel.SetText(second_caption);
  ShowAll({&Continue, &Image1, &TextCont}, show_first);
  ShowAll({&IDCancel, &Image3, &TextClose}, show_second);
  Image4.SetPicture(picture_key);
  Highlight(show_first, !show_first);
  Load();
  (show_first ? TextCont : TextClose).SetFocus();
  ShowModal(owner);
  return answer_;
}

void frmGeneralMessage::ShowNote() {
  fraNote.SetVisible(true);
}

void frmGeneralMessage::Answer(bool answer) {
  answer_ = answer;
  Unload();
}

void frmGeneralMessage::Highlight(bool first, bool second) {
  Continue.SetHighlighted(first);
  IDCancel.SetHighlighted(second);
  Image1.SetPicture(first ? kHighlightedPicture : kPlainPicture);
  Image3.SetPicture(second ? kHighlightedPicture : kPlainPicture);
}

bool frmGeneralMessage::ContinueKey(Key key) {
  if (key != Key::kEnter && key != Key::kSpace && key != Key::kEscape) return false;
  Answer(key != Key::kEscape);
  return true;
}

bool frmGeneralMessage::CloseKey(Key key) {
  if (key != Key::kEnter && key != Key::kSpace && key != Key::kEscape) return false;
  Answer(false);
  return true;
}

}  // namespace forms
