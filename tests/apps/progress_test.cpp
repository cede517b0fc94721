#include "apps/rangewerks/progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace rangewerks::apps {
namespace {

using namespace std::chrono_literals;

class ProgressOfARun : public ::testing::Test {
 protected:
  std::chrono::steady_clock::time_point now{};
  std::ostringstream output;
  Progress::Clock clock = [this] { return now; };
};

TEST_F(ProgressOfARun, IsSilentInTheFirstSecond) {
  Progress progress(output, true, clock);
  now += 999ms;
  progress.Show(1, 300);
  EXPECT_EQ(output.str(), "");
}

TEST_F(ProgressOfARun, IsWrittenOverAtMostTenTimesASecondAndTakenAway) {
  {
    Progress progress(output, true, clock);
    now += 1s;
    progress.Show(120, 300);
    now += 99ms;
    progress.Show(130, 300);
    now += 1ms;
    progress.Show(131, 300);
  }
  EXPECT_EQ(output.str(),
            "\rrangewerks: row 120 of 300\x1b[K\rrangewerks: row 131 of 300\x1b[K\r\x1b[K");
}

TEST_F(ProgressOfARun, SaysAtOnceWhatAStepWithoutACountIsDoing) {
  {
    Progress progress(output, true, clock);
    progress.Say("saving");
    now += 99ms;
    progress.Show(1, 300);
    now += 1ms;
    progress.Show(2, 300);
  }
  EXPECT_EQ(output.str(), "\rrangewerks: saving\x1b[K\rrangewerks: row 2 of 300\x1b[K\r\x1b[K");
}

TEST_F(ProgressOfARun, IsSilentWhenNobodyWatches) {
  {
    Progress progress(output, false, clock);
    now += 1h;
    progress.Show(120, 300);
    progress.Say("saving");
  }
  EXPECT_EQ(output.str(), "");
}

}  // namespace
}  // namespace rangewerks::apps
