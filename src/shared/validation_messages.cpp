#include "shared/validation_messages.h"

namespace shared {
namespace {

struct ValidationMessage {
  int code;
  TextEntry text;
  std::string_view before_looked_up = {};  // in front of a text of the library only
};

constexpr ValidationMessage kMessages[] = {
    {11, {1624, "Enter the UserName"}},
    {101, {1008, " Select a transfer set."}, " "},
    {103, {1009, "Enter a name for the zip file."}},
    {104, {818, "Enter a valid email address to receive notifications."}},
    {105, {999, "Enter your valid email address."}},
    {106, {999, "Enter your valid email address."}},
    {205, {999, "Enter your valid email address."}},
    {206, {999, "Enter your valid email address."}},
    {108, {1012, "Set the schedule backup frequency for a future date and time."}},
    {201, {1013, "Select the files for backup."}},
    {202, {1014, "Select the folders for backup."}},
    {203, {823, "Select the files to be restored "}},
    {204, {1016, "Select a folder on your local machine to restore your data to it."}},
};

}  // namespace

std::optional<std::string> ValidationText(Texts& texts, int code) {
  for (const ValidationMessage& message : kMessages) {
    if (message.code != code) continue;
    const std::string looked_up = texts.GetText(message.text.id);
    if (looked_up.empty()) return std::string(message.text.literal);
    return std::string(message.before_looked_up).append(looked_up);
  }
  return std::nullopt;
}

void ShowValidationMessage(Messages& messages, Texts& texts, int code) {
  const std::optional<std::string> text = ValidationText(texts, code);
  if (!text) return;
  messages.ShowMessage({.text = *text,
                        .first_caption = "OK",
                        .second_caption = "Close",
                        .show_first = true,
                        .show_second = false,
                        .picture = MessagePicture::kInfo});
}

}  // namespace shared
