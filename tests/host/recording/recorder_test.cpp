#include "host/recording/recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace host::recording;
using host::screen::Button;
using host::screen::ButtonPhase;
using host::screen::TouchPhase;
using host::screen::WheelKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kStart = 1000.1;
constexpr double kFrame = 1.0 / 60;

/// A recorder and the time of what it records, in seconds from its start.
struct Recording {
  explicit Recording(const Fidelity& fidelity)
      : recorder(fidelity, kStart, [this](const std::string& line) { lines.push_back(line); }) {}

  double now() const { return kStart + passed; }
  void touch(TouchPhase phase, CGPoint point, int finger = 1007) {
    recorder.touch(finger, phase, point, now());
  }
  /// Reports the finger at even intervals, in `count` steps to `to`.
  void move(CGPoint from, CGPoint to, double seconds, int count) {
    const double began = passed;
    for (int i = 1; i <= count; ++i) {
      const double part = static_cast<double>(i) / count;
      passed = began + seconds * part;
      touch(TouchPhase::Moved, {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    }
  }

  double passed = 0;
  std::vector<std::string> lines;
  Recorder recorder;
};

TEST(Recordings, OfNothingHaveOnlyTheWaitToTheirEnd) {
  Recording of(Fidelity::exact());
  of.recorder.end(of.now());
  EXPECT_THAT(of.lines, IsEmpty());
  of.passed = 0.3;
  of.recorder.end(of.now());
  of.recorder.end(of.now());
  EXPECT_THAT(of.lines, ElementsAre("advance 0.3"));
}

TEST(Recordings, HaveTheWaitsBetweenWhatIsDone) {
  Recording of(Fidelity::exact());
  of.passed = 0.25;
  of.recorder.press(Button::HomeDouble, of.now());
  of.recorder.button(Button::VolumeUp, ButtonPhase::Down, of.now());
  of.passed = 1;
  of.recorder.button(Button::VolumeUp, ButtonPhase::Up, of.now());
  of.recorder.wheel({1.5, 2}, {0, -1}, WheelKind::Notched, of.now());
  of.recorder.wheel({1.5, 2}, {0.5, 3}, WheelKind::Precise, of.now());
  of.recorder.right_click({3, 4}, of.now());
  of.recorder.key("control-shift-left", of.now());
  of.recorder.line("system control-centre", of.now());
  EXPECT_THAT(of.lines, ElementsAre("advance 0.25", "button home-double", "button volume-up down",
                                    "advance 0.75", "button volume-up up", "wheel 1.5 2 0 -1",
                                    "wheel 1.5 2 0.5 3 precise", "right-click 3 4",
                                    "key control-shift-left", "system control-centre"));
}

TEST(Recordings, WaitLongerThanTheConsoleDoesAtOnce) {
  Recording of(Fidelity::exact());
  of.passed = 100'000;
  of.recorder.end(of.now());
  EXPECT_THAT(of.lines, ElementsAre("advance 86400", "advance 13600"));
}

TEST(Recordings, OnAStepOfTheClockAreTapsAndDragsAsTheyWereWritten) {
  Recording of(Fidelity::exact());
  of.touch(TouchPhase::Began, {10, 20});
  of.passed += 0.05;
  of.touch(TouchPhase::Ended, {10, 20});
  of.passed += 0.08;
  of.touch(TouchPhase::Began, {57, 332});
  of.move({57, 332}, {157, 232}, 0.5, 30);
  of.touch(TouchPhase::Ended, {157, 232});
  EXPECT_THAT(of.lines, ElementsAre("tap 10 20", "advance 0.08", "drag 57 332 157 232 0.5"));
}

TEST(Recordings, OfASteppedFingerRepeatEveryReport) {
  Recording of(Fidelity::exact());
  of.touch(TouchPhase::Began, {0, 0});
  of.passed += 0.1;
  of.touch(TouchPhase::Moved, {30, 40});
  of.move({30, 40}, {60, 80}, 3 * kFrame, 3);
  of.move({60, 80}, {90, 80}, 2 * kFrame, 2);
  of.passed += 0.3;
  of.touch(TouchPhase::Cancelled, {90, 81});
  EXPECT_THAT(of.lines, ElementsAre("touch began 0 0", "advance 0.1", "touch moved 30 40",
                                    "touch moved 60 80 0.05", "touch moved 90 80 0.033333333",
                                    "advance 0.3", "touch cancelled 90 81"));
}

TEST(Recordings, ByHandHaveFewPointsOfAPath) {
  Recording of(Fidelity::by_hand());
  of.touch(TouchPhase::Began, {100, 100});
  // A quarter of a circle, as a mouse reports it, 500 times a second.
  for (int i = 1; i <= 250; ++i) {
    const double angle = i / 250.0 * std::acos(0.0);
    of.passed = i * 0.002;
    of.touch(TouchPhase::Moved, {100 + 150 * std::sin(angle), 250 - 150 * std::cos(angle)});
  }
  of.passed += 0.2;
  of.touch(TouchPhase::Ended, {250, 250});
  ASSERT_THAT(of.lines, SizeIs(testing::AllOf(testing::Gt(6u), testing::Lt(16u))));
  EXPECT_EQ(of.lines.front(), "touch began 100 100");
  EXPECT_THAT(of.lines[of.lines.size() - 3], testing::StartsWith("touch moved 250 250 "));
  EXPECT_EQ(of.lines[of.lines.size() - 2], "advance 0.2");
  EXPECT_EQ(of.lines.back(), "touch ended 250 250");
}

TEST(Recordings, ByHandKeepARestBetweenTwoMovements) {
  Recording of(Fidelity::by_hand());
  of.touch(TouchPhase::Began, {0, 0});
  of.move({0, 0}, {100, 0}, 0.2, 40);
  of.passed += 0.5;
  of.touch(TouchPhase::Moved, {101, 0});
  of.move({101, 0}, {200, 0}, 0.2, 40);
  of.touch(TouchPhase::Ended, {200, 0});
  EXPECT_THAT(of.lines,
              ElementsAre("touch began 0 0", "touch moved 100 0 0.2", "advance 0.5",
                          "touch moved 101 0", "touch moved 200 0 0.2", "touch ended 200 0"));
}

TEST(Recordings, ByHandRoundWithoutDrifting) {
  Recording of(Fidelity::by_hand());
  for (int i = 1; i <= 1000; ++i) {
    of.passed = i * 0.1004;
    of.recorder.key("tab", of.now());
  }
  double waited = 0;
  for (const std::string& line : of.lines) {
    if (line.starts_with("advance ")) waited += std::stod(line.substr(8));
  }
  EXPECT_NEAR(waited, 100.4, 0.001);
}

TEST(Recordings, OfSeveralFingersRepeatEachReport) {
  Recording of(Fidelity::by_hand());
  of.touch(TouchPhase::Began, {1, 1}, 40);
  of.touch(TouchPhase::Began, {2, 2}, 41);
  of.passed += 0.016;
  of.touch(TouchPhase::Moved, {3, 3}, 41);
  of.touch(TouchPhase::Ended, {1, 1}, 40);
  of.touch(TouchPhase::Ended, {3, 3}, 41);
  EXPECT_THAT(of.lines, ElementsAre("touch began 1 1", "touch 2 began 2 2", "advance 0.016",
                                    "touch 2 moved 3 3", "touch ended 1 1", "touch 2 ended 3 3"));
}

TEST(Recordings, IgnoreAFingerThatWasDownBefore) {
  Recording of(Fidelity::exact());
  of.touch(TouchPhase::Moved, {1, 1});
  of.touch(TouchPhase::Ended, {1, 1});
  EXPECT_THAT(of.lines, IsEmpty());
}

TEST(Recordings, WriteAStrokeBeforeWhatIsDoneDuringIt) {
  Recording of(Fidelity::exact());
  of.touch(TouchPhase::Began, {1, 1});
  of.recorder.key("escape", of.now());
  of.touch(TouchPhase::Ended, {1, 1});
  EXPECT_THAT(of.lines, ElementsAre("touch began 1 1", "key escape", "touch ended 1 1"));
}

TEST(Recordings, TypeTextThatTheConsoleTakes) {
  Recording of(Fidelity::exact());
  of.recorder.type("two words", of.now());
  of.recorder.type("  # a\tb \n", of.now());
  EXPECT_THAT(of.lines, ElementsAre("type two words", "key space", "key space", "type # a",
                                    "key tab", "type b", "key space", "key return"));
}

TEST(Recordings, ByHandGatherTheLettersOfAWord) {
  Recording of(Fidelity::by_hand());
  for (const char* letter : {"l", "a", "m", "p"}) {
    of.recorder.type(letter, of.now());
    of.passed += 0.2;
  }
  of.recorder.key("return", of.now());
  of.passed += 5;
  of.recorder.type("x", of.now());
  of.passed += 2;
  of.recorder.type("y", of.now());
  of.recorder.end(of.now());
  EXPECT_THAT(of.lines, ElementsAre("type lamp", "advance 0.8", "key return", "advance 5", "type x",
                                    "advance 2", "type y"));
}

}  // namespace
