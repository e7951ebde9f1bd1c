#include "agent/form_messages.h"

#include <string_view>
#include <utility>

#include "forms/frm_general_message.h"

namespace agent {
namespace {

std::string_view PictureKey(shared::MessagePicture picture) {
  switch (picture) {
    case shared::MessagePicture::kInfo:
      return "info";
    case shared::MessagePicture::kWarn:
      return "warn";
    case shared::MessagePicture::kQuestion:
      return "question";
  }
  return "";
}

}  // namespace

FormMessages::FormMessages(forms::FormHost& host, shared::AgentState& state)
    : host_(host), state_(state) {}

bool FormMessages::ShowMessage(const shared::Message& message) {
  forms::frmGeneralMessage box(host_, state_.MessageAnswer);
  forms::Form* const outer = std::exchange(open_, &box);
  const bool answer = Show(box, message);
  open_ = outer;
  return answer;
}

void FormMessages::Dismiss() {
  if (open_ != nullptr) open_->Unload();
}

bool FormMessages::Show(forms::frmGeneralMessage& box, const shared::Message& message) {
  const std::string_view picture = PictureKey(message.picture);
  if (message.file_size_note) box.ShowNote();
  if (message.title.empty()) {
    return box.ShowMessage(message.text, message.first_caption, message.second_caption,
                           message.show_first, message.show_second, picture, nullptr);
  }
  return box.ShowMessageTitled(message.title, message.text, message.first_caption,
                               message.second_caption, message.show_first, message.show_second,
                               picture, nullptr);
}

}  // namespace agent
