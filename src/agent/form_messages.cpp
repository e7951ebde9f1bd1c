#include "agent/form_messages.h"

#include <string_view>

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
  const std::string_view picture = PictureKey(message.picture);
  if (message.title.empty()) {
    return box.ShowMessage(message.text, message.first_caption, message.second_caption,
                           message.show_first, message.show_second, picture, nullptr);
  }
  return box.ShowMessageTitled(message.title, message.text, message.first_caption,
                               message.second_caption, message.show_first, message.show_second,
                               picture, nullptr);
}

}  // namespace agent
