#include "host/runtime/run_loop.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace {

struct RunLoopTest : ::testing::Test {
  host::SteppedClock clock;
  host::RunLoop loop{clock};
  std::vector<std::string> log;
  const double start = clock.now();

  void advance(double seconds) { loop.advance_to(clock, clock.now() + seconds); }
  host::RunLoop::Work note(std::string text) {
    return [this, text] { log.push_back(text); };
  }
};

TEST_F(RunLoopTest, AdvancingFiresTimersInDueOrderAtTheirDueTime) {
  loop.add_timer(start + 0.3, 0, note("late"));
  loop.add_timer(start + 0.1, 0, [&] {
    log.push_back("early");
    EXPECT_DOUBLE_EQ(clock.now(), start + 0.1);
  });
  advance(0.2);
  EXPECT_EQ(log, std::vector<std::string>{"early"});
  advance(0.2);
  EXPECT_EQ(log, (std::vector<std::string>{"early", "late"}));
}

TEST_F(RunLoopTest, ARepeatingTimerKeepsItsGridAndSkipsMissedTicks) {
  int ticks = 0;
  loop.add_timer(start + 1, 1, [&] { ++ticks; });
  advance(3.5);
  EXPECT_EQ(ticks, 3);
  clock.move_to(start + 7.25);  // The loop did not run meanwhile.
  loop.run_ready();
  EXPECT_EQ(ticks, 4);
  advance(0.7);
  EXPECT_EQ(ticks, 4);
  advance(0.1);
  EXPECT_EQ(ticks, 5);
}

TEST_F(RunLoopTest, TimersThatMayBeLateWakeASleepingLoopTogether) {
  loop.add_timer(start + 0.1, 0.1, note("first"), 0.01);
  EXPECT_DOUBLE_EQ(loop.next_wake(), start + 0.1);
  loop.add_timer(start + 0.106, 0.1, note("second"), 0.01);
  loop.add_timer(start + 0.109, 0, note("once"));
  EXPECT_DOUBLE_EQ(loop.next_wake(), start + 0.109);
  clock.move_to(loop.next_wake());
  loop.run_ready();
  EXPECT_EQ(log, (std::vector<std::string>{"first", "second", "once"}));
  EXPECT_DOUBLE_EQ(loop.next_due(), start + 0.2) << "being late once delays no other tick";
}

TEST_F(RunLoopTest, NoTimerIsLaterThanItMayBe) {
  loop.add_timer(start + 0.1, 0.1, note("late"), 0.01);
  const auto punctual = loop.add_timer(start + 0.105, 0, note("punctual"));
  loop.add_timer(start + 0.108, 0, note("after"));
  EXPECT_DOUBLE_EQ(loop.next_wake(), start + 0.105);
  loop.remove_timer(punctual);
  EXPECT_DOUBLE_EQ(loop.next_wake(), start + 0.108);
  loop.add_frame_observer([](double) {});
  EXPECT_DOUBLE_EQ(loop.next_wake(), loop.next_due()) << "a frame is never late";
}

TEST_F(RunLoopTest, OnASteppedClockNoTimerIsLate) {
  loop.add_timer(
      start + 0.1, 0.1, [&] { EXPECT_DOUBLE_EQ(clock.now(), start + 0.1); }, 0.01);
  loop.add_timer(start + 0.106, 0, note("once"));
  advance(0.15);
  EXPECT_EQ(log, std::vector<std::string>{"once"});
}

TEST_F(RunLoopTest, TenthsOfASecondAddUpToWholeSeconds) {
  int ticks = 0;
  loop.add_timer(start + 0.1, 0.1, [&] { ++ticks; });
  advance(10.0);
  EXPECT_EQ(ticks, 100);
}

TEST_F(RunLoopTest, ARemovedTimerDoesNotFireEvenWhenRemovedInTheSameTurn) {
  host::RunLoop::Id second = 0;
  loop.add_timer(start + 0.1, 0, [&] { loop.remove_timer(second); });
  second = loop.add_timer(start + 0.1, 0, note("second"));
  advance(1);
  EXPECT_TRUE(log.empty());
}

TEST_F(RunLoopTest, WorkAddedDuringWorkWaitsForTheNextTurn) {
  loop.add_turn_observer(0, note("end of turn"));
  loop.perform([&] {
    log.push_back("first");
    loop.perform(note("second"));
  });
  loop.run_ready();
  EXPECT_EQ(log, (std::vector<std::string>{"first", "end of turn", "second", "end of turn"}));
}

TEST_F(RunLoopTest, FramesComeSixtyTimesASecondOnlyWhileTheyAreObserved) {
  int frames = 0;
  const auto observer = loop.add_frame_observer([&](double) { ++frames; });
  advance(1.0);
  EXPECT_EQ(frames, 60);
  loop.remove_frame_observer(observer);
  EXPECT_FALSE(loop.wants_frames());
  advance(1.0);
  EXPECT_EQ(frames, 60);
}

TEST_F(RunLoopTest, ATurnKnowsWhetherItIncludedAFrame) {
  std::vector<std::pair<double, bool>> turns;
  loop.add_frame_observer([](double) {});
  loop.add_timer(start + 0.02, 0, [] {});
  loop.add_turn_observer(0, [&] { turns.emplace_back(loop.now(), loop.turn_has_frame()); });
  advance(0.035);
  int frames = 0;
  int others = 0;
  for (const auto& [time, is_frame] : turns)
    ++(is_frame ? frames : others);
  EXPECT_EQ(frames, 2);
  // The turn before time moves, and the timer's.
  EXPECT_EQ(others, 2);
  EXPECT_TRUE(turns.back().second);
}

TEST_F(RunLoopTest, TurnObserversRunInTheirOrder) {
  loop.add_turn_observer(200, note("paint"));
  loop.add_turn_observer(100, note("layout"));
  loop.perform([] {});
  loop.run_ready();
  EXPECT_EQ(log, (std::vector<std::string>{"layout", "paint"}));
}

TEST_F(RunLoopTest, ADescriptorsWorkRunsWhenItIsReadable) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const auto watch = loop.watch(ends[0], [&] {
    char letter = 0;
    ASSERT_EQ(read(ends[0], &letter, 1), 1);
    log.push_back(std::string(1, letter));
  });
  loop.run_ready();
  EXPECT_TRUE(log.empty());
  ASSERT_EQ(write(ends[1], "x", 1), 1);
  loop.run_ready();
  EXPECT_EQ(log, std::vector<std::string>{"x"});
  loop.unwatch(watch);
  ASSERT_EQ(write(ends[1], "y", 1), 1);
  loop.run_ready();
  EXPECT_EQ(log.size(), 1u);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(RunLoopTest, AWatchWaitsToWriteOnlyWhileItIsToldTo) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends), 0);
  const auto write_all_it_takes = [&] {
    const char bytes[4096] = {};
    while (write(ends[0], bytes, sizeof bytes) > 0) {
    }
  };
  int calls = 0;
  const auto watch = loop.watch(ends[0], [&] {
    ++calls;
    write_all_it_takes();
  });
  loop.run_ready();
  EXPECT_EQ(calls, 0) << "nothing can be read, and it does not wait to write";
  loop.wait_to_write(watch, true);
  loop.run_ready();
  EXPECT_EQ(calls, 1) << "the first call leaves no room for another";
  char bytes[4096];
  while (read(ends[1], bytes, sizeof bytes) > 0) {
  }
  loop.run_ready();
  EXPECT_EQ(calls, 2) << "the other end has made room";
  while (read(ends[1], bytes, sizeof bytes) > 0) {
  }
  loop.wait_to_write(watch, false);
  loop.run_ready();
  EXPECT_EQ(calls, 2);
  loop.unwatch(watch);
  close(ends[0]);
  close(ends[1]);
}

TEST(RunLoop, OnTheRealClockItSleepsUntilTheNextTimerAndStops) {
  host::RealClock clock;
  host::RunLoop loop(clock);
  int ticks = 0;
  loop.add_timer(clock.now() + 0.01, 0.01, [&] {
    if (++ticks == 3) loop.stop();
  });
  loop.run();
  EXPECT_EQ(ticks, 3);
}

}  // namespace
