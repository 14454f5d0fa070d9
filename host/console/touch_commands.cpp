#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>

#include "host/console/commands.h"
#include "host/console/names.h"

namespace host::console {
namespace {

constexpr double kFrame = 1.0 / 60;
// A quick finger: well within the limits of a tap, and of the time between two taps.
constexpr double kTapHold = 0.05;
constexpr double kTapPause = 0.08;
constexpr int kMostTaps = 10;
constexpr double kLongestDrag = 60;
constexpr double kLongestTurn = 10000;
// The finger that taps and drags, and the default for touches.
constexpr int kFirstFinger = 1;
constexpr int kLastFinger = 5;

const Problem kFingerIsDown{"a finger is on the screen already", 0};
const Problem kNoFinger{"no finger is on the screen", 0};

Result<Answer> tap(Session& session, LineReader& reader) {
  const auto point = session.point(reader);
  if (!point) return point.problem();
  int count = 1;
  if (!reader.at_end()) {
    const Problem wrong = reader.problem(fmt::format("the number of taps is 1 to {}", kMostTaps));
    const auto given = reader.number("the number of taps");
    if (!given) return given.problem();
    if (*given != std::floor(*given) || *given < 1 || *given > kMostTaps) return wrong;
    count = static_cast<int>(*given);
  }
  if (const auto problem = reader.end()) return *problem;
  if (session.is_down(kFirstFinger)) return kFingerIsDown;
  for (int i = 0; i < count; ++i) {
    if (i > 0) session.phone().advance(kTapPause);
    session.touch(kFirstFinger, TouchPhase::Began, *point);
    session.phone().advance(kTapHold);
    session.touch(kFirstFinger, TouchPhase::Ended, *point);
  }
  return Answer{};
}

/// Reads the finger's number, if one is given.
Result<int> finger_of(LineReader& reader) {
  const auto word = reader.peek_word();
  if (word.empty() || !std::isdigit(static_cast<unsigned char>(word.front()))) return kFirstFinger;
  const Problem wrong =
      reader.problem(fmt::format("fingers are numbered from 1 to {}", kLastFinger));
  const auto number = reader.number("the number of a finger");
  if (!number) return number.problem();
  if (*number != std::floor(*number) || *number < kFirstFinger || *number > kLastFinger)
    return wrong;
  return static_cast<int>(*number);
}

/// Reads a number of seconds that a finger may take for its way.
Result<double> seconds_of(LineReader& reader, std::string_view what) {
  reader.at_end();
  const Problem wrong =
      reader.problem(fmt::format("a {} lasts 0 to {} seconds", what, kLongestDrag));
  const auto seconds = reader.number("the number of seconds");
  if (seconds && (*seconds < 0 || *seconds > kLongestDrag)) return wrong;
  return seconds;
}

// Reports one touch per frame, as a screen does, so recognisers see the intended speed.
void glide(Session& session, int finger, CGPoint to, double seconds) {
  const CGPoint from = session.place_of(finger);
  const int frames = std::max(1, static_cast<int>(std::lround(seconds / kFrame)));
  for (int frame = 1; frame <= frames; ++frame) {
    const double part = static_cast<double>(frame) / frames;
    session.phone().advance(seconds / frames);
    session.touch(finger, TouchPhase::Moved,
                  {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
  }
}

Result<Answer> touch(Session& session, LineReader& reader) {
  reader.at_end();
  const auto finger = finger_of(reader);
  if (!finger) return finger.problem();
  reader.at_end();
  const Problem unknown = reader.problem("began, moved, ended or cancelled is missing");
  const auto phase = value_named(kPhases, reader.word());
  if (!phase) return unknown;
  const auto point = session.point(reader);
  if (!point) return point.problem();
  std::optional<double> seconds;
  if (*phase == TouchPhase::Moved && !reader.at_end()) {
    const auto given = seconds_of(reader, "movement");
    if (!given) return given.problem();
    seconds = *given;
  }
  if (const auto problem = reader.end()) return *problem;
  const bool begins = *phase == TouchPhase::Began;
  if (begins && session.is_down(*finger)) return kFingerIsDown;
  if (!begins && !session.is_down(*finger)) return kNoFinger;
  if (seconds) {
    glide(session, *finger, *point, *seconds);
  } else {
    session.touch(*finger, *phase, *point);
  }
  return Answer{};
}

Result<Answer> drag(Session& session, LineReader& reader) {
  const auto from = session.point(reader);
  if (!from) return from.problem();
  const auto to = session.point(reader);
  if (!to) return to.problem();
  const auto seconds = seconds_of(reader, "drag");
  if (!seconds) return seconds.problem();
  if (const auto problem = reader.end()) return *problem;
  if (session.is_down(kFirstFinger)) return kFingerIsDown;
  session.touch(kFirstFinger, TouchPhase::Began, *from);
  glide(session, kFirstFinger, *to, *seconds);
  session.touch(kFirstFinger, TouchPhase::Ended, *to);
  return Answer{};
}

/// Reads how far the wheel turns along one axis.
Result<double> turn_of(LineReader& reader) {
  reader.at_end();
  const Problem wrong = reader.problem(fmt::format("a wheel turns by at most {}", kLongestTurn));
  const auto by = reader.number("how far the wheel turns");
  if (by && std::abs(*by) > kLongestTurn) return wrong;
  return by;
}

Result<Answer> wheel(Session& session, LineReader& reader) {
  const auto point = session.point(reader);
  if (!point) return point.problem();
  const auto across = turn_of(reader);
  if (!across) return across.problem();
  const auto down = turn_of(reader);
  if (!down) return down.problem();
  const bool precise = reader.peek_word() == "precise";
  if (precise) reader.word();
  if (const auto problem = reader.end()) return *problem;
  return answer_of(session.phone().wheel(*point, {*across, *down},
                                         precise ? WheelKind::Precise : WheelKind::Notched));
}

Result<Answer> right_click(Session& session, LineReader& reader) {
  const auto point = session.point(reader);
  if (!point) return point.problem();
  if (const auto problem = reader.end()) return *problem;
  return answer_of(session.phone().right_click(*point));
}

constexpr Command kTouchCommands[] = {{"tap", &tap},
                                      {"touch", &touch},
                                      {"drag", &drag},
                                      {"wheel", &wheel},
                                      {"right-click", &right_click}};

}  // namespace

std::span<const Command> touch_commands() {
  return kTouchCommands;
}

}  // namespace host::console
