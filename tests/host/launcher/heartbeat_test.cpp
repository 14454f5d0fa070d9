#include "host/launcher/heartbeat.h"

#include <gtest/gtest.h>

namespace {

using host::launcher::Heartbeat;
using Finding = Heartbeat::Finding;

/// Looks once a second from `from` to before `to`; returns the time of the first finding.
double first(Heartbeat& heartbeat, Finding finding, double from, double to) {
  for (double now = from; now < to; ++now) {
    if (heartbeat.look(now) == finding) return now;
  }
  return to;
}

TEST(Heartbeats, BeginWithTheFirstSignOfLife) {
  Heartbeat heartbeat(1);
  EXPECT_EQ(first(heartbeat, Finding::ShouldAsk, 0, 1000), 1000);
  heartbeat.answered(1000);
  EXPECT_EQ(first(heartbeat, Finding::ShouldAsk, 1000, 2000), 1001);
}

TEST(Heartbeats, StopAfterFiveSecondsWithoutAnAnswer) {
  Heartbeat heartbeat(1);
  heartbeat.answered(0);
  EXPECT_EQ(first(heartbeat, Finding::ShouldAsk, 0, 100), 1);
  EXPECT_EQ(first(heartbeat, Finding::IsHung, 2, 100), 6);
}

TEST(Heartbeats, ContinueWithEachAnswer) {
  Heartbeat heartbeat(1);
  for (double now = 0; now < 100; now += 4) {
    heartbeat.answered(now);
    EXPECT_EQ(first(heartbeat, Finding::IsHung, now, now + 4), now + 4);
  }
}

TEST(Heartbeats, DoNotCountAPauseOfTheOneWhoLooks) {
  Heartbeat heartbeat(1);
  heartbeat.answered(0);
  ASSERT_EQ(heartbeat.look(1), Finding::ShouldAsk);
  EXPECT_EQ(heartbeat.look(3600), Finding::Nothing);
  EXPECT_EQ(heartbeat.look(7200), Finding::Nothing);
  EXPECT_EQ(first(heartbeat, Finding::IsHung, 7201, 7300), 7202);
}

TEST(Heartbeats, AreScaledAndNeverStopWithAScaleOfZero) {
  Heartbeat slow(10);
  slow.answered(0);
  EXPECT_EQ(first(slow, Finding::IsHung, 0, 1000), 60);
  Heartbeat endless(0);
  endless.answered(0);
  EXPECT_EQ(first(endless, Finding::IsHung, 0, 1000), 1000);
}

}  // namespace
