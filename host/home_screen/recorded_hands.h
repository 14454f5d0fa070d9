#pragma once

#include <string>

#include "host/home_screen/hands.h"
#include "host/recording/recorder.h"

namespace host::launcher {

/// The user's hands, and the recording of what they do. What the phone refuses is not recorded.
class RecordedHands {
 public:
  using Refusal = Hands::Refusal;

  /// `fidelity` is that of all recordings.
  RecordedHands(Hands& hands, const RunLoop& loop, const recording::Fidelity& fidelity)
      : hands_(hands), loop_(loop), fidelity_(fidelity) {}
  ~RecordedHands() { end_recording(); }
  RecordedHands(const RecordedHands&) = delete;
  RecordedHands& operator=(const RecordedHands&) = delete;

  /// Records to a new file until the next of these two.
  Refusal record(const std::string& file);
  Refusal end_recording();
  /// Records a line that something other than hands has carried out.
  void note(std::string_view line);

  void touch(int finger, screen::TouchPhase phase, CGPoint point);
  Refusal wheel(CGPoint point, CGPoint by, screen::WheelKind kind);
  Refusal type(std::string_view text);
  /// Only the text that comes of it is recorded.
  Refusal compose(std::string_view text, int caret) { return hands_.compose(text, caret); }
  Refusal key(std::string_view name);
  Refusal right_click(CGPoint point);
  Refusal press(screen::Button button);
  Refusal button(screen::Button button, screen::ButtonPhase phase);
  void shake();

 private:
  /// Has `put` record what was done, unless it was refused, and returns the refusal.
  template <class Put>
  Refusal recorded(Refusal refusal, Put put) {
    if (recorder_ && !refusal) put(*recorder_, loop_.now());
    return refusal;
  }

  Hands& hands_;
  const RunLoop& loop_;
  recording::Fidelity fidelity_;
  std::string file_;
  std::optional<recording::Recorder> recorder_;
};

}  // namespace host::launcher
