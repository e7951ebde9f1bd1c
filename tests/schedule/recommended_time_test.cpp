#include "schedule/recommended_time.h"

#include <gtest/gtest.h>

#include <deque>

#include "schedule/calendar.h"
#include "shared/trace.h"

namespace schedule {
namespace {

using platform::LocalTime;

// Gives its draws in turn, the last one for ever.
class Draws : public platform::Random {
 public:
  explicit Draws(std::deque<double> draws) : draws_(std::move(draws)) {}

  double Next() override {
    const double draw = draws_.front();
    if (draws_.size() > 1) draws_.pop_front();
    return draw;
  }

 private:
  std::deque<double> draws_;
};

LocalTime At(int hour, int minute = 0) {
  return {.year = 2011, .month = 12, .day = 31, .hour = hour, .minute = minute, .second = 0};
}

std::string Pick(const LocalTime& now, std::deque<double> draws) {
  Draws random(std::move(draws));
  return shared::FormatStamp(PickRecommendedTime(now, random));
}

TEST(RecommendedTime, EveryHourOfTheDayWithEveryDrawLiesInTheComingNight) {
  constexpr int kDraws = 24;
  for (int hour = 0; hour < 24; ++hour) {
    for (const int minute : {0, 1, 30, 59}) {
      for (int first = 0; first < kDraws; ++first) {
        for (int second = 0; second < kDraws; ++second) {
          const LocalTime now = At(hour, minute);
          Draws random({first / double{kDraws}, second / double{kDraws}});
          const LocalTime picked = PickRecommendedTime(now, random);
          EXPECT_GT(picked, now);
          EXPECT_GE(picked, At(19));
          EXPECT_LE(picked, AddDays(At(6), 1));
          EXPECT_EQ(picked.minute, 0);
          EXPECT_EQ(picked.second, 0);
        }
      }
    }
  }
}

TEST(RecommendedTime, EarlyInTheMorningEachDrawHasItsHour) {
  const std::string hours[] = {"01-01-2012 01", "01-01-2012 02", "01-01-2012 03", "01-01-2012 04",
                               "01-01-2012 05", "01-01-2012 06", "12-31-2011 19", "12-31-2011 20",
                               "12-31-2011 21", "12-31-2011 22", "12-31-2011 23", "12-31-2011 23"};
  for (int draw = 0; draw < 12; ++draw) {
    EXPECT_EQ(Pick(At(3), {(draw + 0.5) / 12}), hours[draw] + ":00:00") << draw;
  }
}

TEST(RecommendedTime, LaterTheHourComesFromWhatIsLeftOfTheNight) {
  EXPECT_EQ(Pick(At(9), {0.5, 0.0}), "12-31-2011 19:00:00");
  EXPECT_EQ(Pick(At(9), {0.5, 0.999}), "01-01-2012 06:00:00");
  EXPECT_EQ(Pick(At(6), {0.5, 0.0}), "12-31-2011 19:00:00");
  EXPECT_EQ(Pick(At(19, 30), {0.5, 0.0}), "12-31-2011 20:00:00");
  EXPECT_EQ(Pick(At(22), {0.0, 0.0}), "12-31-2011 23:00:00");
  EXPECT_EQ(Pick(At(23, 59), {0.0, 0.0}), "01-01-2012 00:00:00");
  EXPECT_EQ(Pick(At(23, 59), {0.0, 0.999}), "01-01-2012 06:00:00");
}

TEST(RecommendedTime, ADrawOfOneOrMoreIsTheLastHour) {
  EXPECT_EQ(Pick(At(9), {1.0, 1.0}), "01-01-2012 06:00:00");
}

}  // namespace
}  // namespace schedule
