#include "shared/texts.h"

#include "shared/validation_messages.h"
#include "tests/shared/installed_product.h"

namespace shared {
namespace {

constexpr std::string_view kLibrary = "C:\\Sorvane\\TVToolTips.dll";

class RecordingMessages final : public Messages {
 public:
  bool ShowMessage(const Message& message) override {
    shown.push_back(std::string(message.text) + "|" + std::string(message.first_caption) + "|" +
                    std::string(message.second_caption));
    first_alone = message.show_first && !message.show_second;
    picture = message.picture;
    return true;
  }

  std::vector<std::string> shown;
  bool first_alone = false;
  MessagePicture picture = MessagePicture::kWarn;
};

class TextsTest : public InstalledProduct {
 protected:
  Texts texts_{platform(), state_};
  RecordingMessages messages_;
};

TEST_F(TextsTest, GivesTheStringWithThatNumberOrTheLiteral) {
  EXPECT_EQ(texts_.GetText(1367), "");
  EXPECT_EQ(texts_.Get({1367, "literal"}), "literal");
  machine_.libraries().PutString(kLibrary, 1367, "translated");
  EXPECT_EQ(texts_.Get({1367, "literal"}), "translated");
  EXPECT_EQ(texts_.Get({1368, "literal"}), "literal");
}

TEST_F(TextsTest, ShowsABuiltInTextForEachValidationCode) {
  const std::pair<int, std::string_view> cases[] = {
      {11, "Enter the UserName"},
      {101, " Select a transfer set."},
      {103, "Enter a name for the zip file."},
      {104, "Enter a valid email address to receive notifications."},
      {105, "Enter your valid email address."},
      {106, "Enter your valid email address."},
      {108, "Set the schedule backup frequency for a future date and time."},
      {201, "Select the files for backup."},
      {202, "Select the folders for backup."},
      {203, "Select the files to be restored "},
      {204, "Select a folder on your local machine to restore your data to it."},
      {205, "Enter your valid email address."},
      {206, "Enter your valid email address."},
  };
  for (const auto& [code, text] : cases) {
    messages_.shown.clear();
    ShowValidationMessage(messages_, texts_, code);
    EXPECT_EQ(messages_.shown, (std::vector<std::string>{std::string(text) + "|OK|Close"}));
    EXPECT_TRUE(messages_.first_alone);
    EXPECT_EQ(messages_.picture, MessagePicture::kInfo);
  }
}

TEST_F(TextsTest, TakesTheValidationTextsFromTheirNumbers) {
  const std::pair<int, std::uint32_t> cases[] = {
      {11, 1624},  {103, 1009}, {104, 818}, {105, 999},  {106, 999}, {108, 1012},
      {201, 1013}, {202, 1014}, {203, 823}, {204, 1016}, {205, 999}, {206, 999},
  };
  for (const auto& [code, id] : cases) {
    machine_.libraries().PutString(kLibrary, id, "text " + std::to_string(id));
    EXPECT_EQ(ValidationText(texts_, code), "text " + std::to_string(id));
  }
}

TEST_F(TextsTest, PutsABlankBeforeALookedUpTransferSetText) {
  machine_.libraries().PutString(kLibrary, 1008, "Choose");
  EXPECT_EQ(ValidationText(texts_, 101), " Choose");
}

TEST_F(TextsTest, ShowsNothingForAnyOtherCode) {
  for (const int code : {-1, 0, 10, 12, 100, 102, 107, 109, 200, 207}) {
    ShowValidationMessage(messages_, texts_, code);
  }
  EXPECT_TRUE(messages_.shown.empty());
}

}  // namespace
}  // namespace shared
