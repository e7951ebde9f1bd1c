#include "shared/trace.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class TraceTest : public InstalledProduct {
 protected:
  std::string Content(std::string_view path) { return machine_.files().Utf16Content(path); }

  Trace trace_{platform(), state_};
};

TEST_F(TraceTest, WritesLinesOfTwoByteCharactersBehindAByteOrderMark) {
  trace_.WriteTrace("a\xE4");
  EXPECT_EQ(machine_.files().Content(InAnnasFolder("TrayTraceFile.txt")),
            std::string("\xFF\xFE"
                        "a\0\xE4\0\r\0\n\0",
                        10));
}

TEST_F(TraceTest, AppendsLineAfterLine) {
  trace_.WriteTrace("one");
  trace_.WriteTrayTrace("two");
  trace_.WriteTrace("");
  EXPECT_EQ(TraceOfAnna(), "one\r\ntwo\r\n\r\n");
}

TEST_F(TraceTest, StampsALineInLocalTime) {
  trace_.WriteInformation("Started Tray...");
  trace_.WriteError("Lost");
  EXPECT_EQ(TraceOfAnna(),
            "03-01-2024 10:00:00  [INFORMATION] Started Tray...\r\n"
            "03-01-2024 10:00:00   [ERROR] Lost\r\n");
}

TEST_F(TraceTest, FillsEachPartOfTheStamp) {
  EXPECT_EQ(FormatStamp({2024, 12, 31, 23, 59, 58}), "12-31-2024 23:59:58");
  EXPECT_EQ(FormatStamp({1, 2, 3, 4, 5, 6}), "02-03-0001 04:05:06");
}

TEST_F(TraceTest, AppendsToTheCommonFileBeforeTheUserIsKnown) {
  state_.CurrentUser = "";
  trace_.WriteTrace("early");
  EXPECT_EQ(Content("C:\\Sorvane\\SorvaneE\\TrayTraceFile.txt"), "early\r\n");
}

TEST_F(TraceTest, ReadsTheUserAfreshForTheSessionTrace) {
  state_.CurrentUser = "ben";
  trace_.WriteSerTrace("line");
  EXPECT_EQ(state_.CurrentUser, "anna");
  EXPECT_EQ(Content(InAnnasFolder("SerTraceFile.txt")), "line\r\n");
}

TEST_F(TraceTest, StampsTheTraceOfTheInstallation) {
  trace_.WriteInstallTrace("suspend");
  EXPECT_EQ(Content(InInstall("TrayTraceFile.txt")), "03-01-2024 10:00:00 : suspend\r\n");
}

TEST_F(TraceTest, KeepsTheTraceOfTheInstallationAtItsCapAndDeletesItAbove) {
  const std::string path = InInstall("TrayTraceFile.txt");
  const std::size_t line = 2 * std::string_view("03-01-2024 10:00:00 : suspend\r\n").size();
  machine_.files().Put(path, std::string(2097152 - line, 'x'));
  trace_.WriteInstallTrace("suspend");
  EXPECT_EQ(platform().files.Size(path), 2097152u);
  trace_.WriteInstallTrace("suspend");
  EXPECT_FALSE(platform().files.Exists(path));
  trace_.WriteInstallTrace("suspend");
  EXPECT_EQ(Content(path), "03-01-2024 10:00:00 : suspend\r\n");
}

TEST_F(TraceTest, NeverCutsTheUsersTrace) {
  machine_.files().Put(InAnnasFolder("TrayTraceFile.txt"), std::string(4000000, 'x'));
  trace_.WriteTrace("a");
  EXPECT_EQ(platform().files.Size(InAnnasFolder("TrayTraceFile.txt")), 4000006u);
}

TEST_F(TraceTest, LosesALineThatCannotBeWritten) {
  const std::string path = InAnnasFolder("TrayTraceFile.txt");
  trace_.WriteTrace("one");
  machine_.LockFile(path);
  trace_.WriteTrace("two");
  machine_.UnlockFile(path);
  machine_.MakeReadOnly(path);
  trace_.WriteTrace("three");
  machine_.MakeReadOnly(path, false);
  trace_.WriteTrace("four");
  EXPECT_EQ(TraceOfAnna(), "one\r\nfour\r\n");
  state_.CurrentUser = "nobody";
  trace_.WriteTrace("five");
}

TEST_F(TraceTest, WritesABanner) {
  trace_.WriteGeneralMessage("text");
  const std::string blanks(42, ' ');
  const std::string rule(72, '-');
  EXPECT_EQ(TraceOfAnna(),
            blanks + "\r\n" + rule + "\r\ntext\r\n" + rule + "\r\n" + blanks + "\r\n");
}

}  // namespace
}  // namespace shared
