#include "status/schedule_texts.h"

#include <gtest/gtest.h>

namespace status {
namespace {

constexpr std::string_view kLine = "1\b\btventbkupjob\b\b02-15-2011 10:30:00\b\b\b\b3";

TEST(RecordField, CutsAtPairsOfBackspaces) {
  EXPECT_EQ(RecordField(kLine, 0), "1");
  EXPECT_EQ(RecordField(kLine, 1), "tventbkupjob");
  EXPECT_EQ(StartTimeField(kLine), "02-15-2011 10:30:00");
  EXPECT_EQ(RecordField(kLine, 3), "");
  EXPECT_EQ(RecordField(kLine, 4), "3");
}

TEST(RecordField, IsEmptyBehindTheLastField) {
  EXPECT_EQ(RecordField(kLine, 5), "");
  EXPECT_EQ(RecordField(kLine, 500), "");
  EXPECT_EQ(StartTimeField(""), "");
}

TEST(StartTimeField, IsEmptyInASentenceWithoutSeparators) {
  EXPECT_EQ(StartTimeField("You have disabled your scheduled job."), "");
}

}  // namespace
}  // namespace status
