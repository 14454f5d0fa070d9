#include "host/applications/program/running_program.h"

#include <cmath>

#include "host/applications/program/player_remote.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log.h"
#include "host/uikit/focus/focus.h"
#include "host/uikit/scroll/wheel.h"
#include "host/uikit/shortcuts/shortcuts.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/text_layout/characters.h"
#include "objc/autorelease_pool.h"

namespace host::application {
namespace {

/// The time that means "nothing is due" on the wire.
constexpr double kVeryLate = 1e15;
/// Among the observers of a turn's end.
constexpr int kAfterDrawing = process::PhoneScreen::kTurnOrder + 100;

NSString to_ns(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

}  // namespace

RunningProgram::RunningProgram(HomeLink& link, RunLoop& loop, SteppedClock* stepped,
                               const console::Globals& globals)
    : link_(link),
      loop_(loop),
      stepped_(stepped),
      screen_([this](const NewFrame& frame) { link_.send(frame); }),
      phone_screen_(loop, screen_),
      session_(phone_, globals),
      turns_(loop.add_turn_observer(kAfterDrawing, [this] { report_text_input(); })),
      warnings_(loop, [this](const std::string& few_words) {
        link_.send(UserWarning{few_words.substr(0, kLongestText)});
      }) {
  PlayerRemote::shared().send = [this](const SteerPlayer& command) { link_.send(command); };
}

RunningProgram::~RunningProgram() {
  PlayerRemote::shared().send = {};
  loop_.remove_turn_observer(turns_);
  for (const auto& watch : {message_watch_, home_watch_}) {
    if (watch) loop_.unwatch(*watch);
  }
}

void RunningProgram::serve() {
  handle_messages();
  if (stepped_) {
    for (;;) {
      link_.wait();
      handle_messages();
    }
  }
  watch();
  loop_.run();
}

void RunningProgram::watch() {
  for (auto* watch : {&message_watch_, &home_watch_}) {
    if (*watch) loop_.unwatch(**watch);
    watch->reset();
  }
  const auto serve = [this] {
    link_.receive();
    handle_messages();
    // A new home screen has a new descriptor.
    watch();
  };
  home_watch_ = loop_.watch(link_.listener(), serve);
  if (link_.is_connected()) message_watch_ = loop_.watch(link_.awaited(), serve);
}

void RunningProgram::handle_messages() {
  if (!link_.is_connected()) screen_.detach();
  while (auto message = link_.next()) {
    const objc::AutoreleasePool pool;
    std::visit([this](const auto& one) { take(one); }, *message);
  }
}

void RunningProgram::take(const Hello& hello) {
  auto surface =
      SharedSurface::open(link_.take_memory(), {hello.width, hello.height, hello.stride});
  if (!surface) {
    spdlog::error("the home screen sent no surface to draw on");
    link_.close();
    return;
  }
  if (stepped_) ahead_ = loop_.now() - hello.now;
  touches_.cancel_all(loop_.now());
  screen_.attach(std::move(surface));
  reported_caret_.reset();
}

void RunningProgram::take(const ScreenPixels& pixels) {
  if (pixels.width > 0) screen_.set_pixels_per_point(pixels.width / current_device().width);
}

void RunningProgram::take(const FingerChange& change) {
  const double time = own_time(change.time);
  move_to(time);
  const CGPoint point{change.x, change.y};
  switch (change.phase) {
    case FingerPhase::Began:
      return touches_.began(change.finger, point, time);
    case FingerPhase::Moved:
      return touches_.moved(change.finger, point, time);
    case FingerPhase::Ended:
      return touches_.ended(change.finger, point, time);
    case FingerPhase::Cancelled:
      return touches_.cancelled(change.finger, point, time);
  }
}

void RunningProgram::take(const WheelTurn& turn) {
  move_to(own_time(turn.time));
  uikit::turn_wheel({turn.x, turn.y}, {turn.across, turn.down},
                    turn.is_precise ? uikit::WheelKind::Precise : uikit::WheelKind::Notched);
}

void RunningProgram::take(const FocusEnds&) {
  uikit::end_focus();
}

// Text is dropped while no field accepts it, as on the home screen.
void RunningProgram::take(const TypedText& typed) {
  if (const NSString text = to_ns(typed.text)) uikit::type_text(text);
}

void RunningProgram::take(const ComposedText& composed) {
  if (const NSString text = to_ns(composed.text))
    uikit::compose_text(text, uikit::utf16_units(composed.text, composed.caret));
}

void RunningProgram::take(const PressedKey& pressed) {
  uikit::take_key(pressed.name);
}

void RunningProgram::take(const Visibility& visibility) {
  screen_.set_in_front(visibility.is_in_front);
  if (!visibility.is_in_front) uikit::end_focus();
}

void RunningProgram::take(const TimeIs& reached) {
  if (!stepped_) return;
  const double time = own_time(reached.time);
  move_to(time);
  loop_.run_ready();
  finish_frame();
  report_text_input();
  const double due = loop_.next_due();
  link_.send(ReachedTime{reached.time, std::isfinite(due) ? due - ahead_ : kVeryLate});
}

void RunningProgram::take(const ConsoleLine& line) {
  const console::Answer made = session_.execute(line.text);
  std::string answer = made.line();
  const bool is_cut = answer.size() > kLongestText;
  if (is_cut && made.kind == console::Answer::Kind::List) {
    answer = "error: the list is too long for this process; ask for a part of it";
  } else if (is_cut) {
    answer.resize(kLongestText);
  }
  link_.send(ConsoleAnswer{std::move(answer)});
}

void RunningProgram::take(const PlaybackIs& playback) {
  PlayerRemote::shared().take(playback);
}

void RunningProgram::move_to(double own_time) {
  if (stepped_) loop_.advance_to(*stepped_, own_time);
}

void RunningProgram::report_text_input() {
  const auto caret = uikit::caret_on_screen();
  if (caret == reported_caret_) return;
  reported_caret_ = caret;
  const CGRect place = caret.value_or(CGRect());
  link_.send(TextInputIs{caret.has_value(), place.min_x(), place.min_y(), place.size.width,
                         place.size.height});
}

// On a stepped clock the home screen waits until the frame of the current time is complete.
void RunningProgram::finish_frame() {
  std::deque<ToApplication> others;
  while (link_.is_connected() && screen_.waits_for_buffer()) {
    auto message = link_.next();
    if (!message) {
      link_.wait();
    } else if (std::holds_alternative<FrameTaken>(*message)) {
      screen_.frame_taken();
    } else {
      others.push_back(std::move(*message));
    }
  }
  link_.put_back(std::move(others));
}

}  // namespace host::application
