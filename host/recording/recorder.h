#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/recording/fidelity.h"
#include "host/recording/stroke.h"

namespace host::recording {

/// Turns what is done to the phone into the lines of a script that does the same again, with the
/// waits between. Each call names the time on the phone's clock. What a finger does is written when
/// no finger is left on the screen.
class Recorder {
 public:
  using Put = std::function<void(const std::string& line)>;

  Recorder(const Fidelity& fidelity, double now, Put put)
      : fidelity_(fidelity), start_(now), put_(std::move(put)) {}

  void touch(int finger, screen::TouchPhase phase, CGPoint point, double now);
  void wheel(CGPoint point, CGPoint by, screen::WheelKind kind, double now);
  void right_click(CGPoint point, double now);
  void press(screen::Button button, double now);
  void button(screen::Button button, screen::ButtonPhase phase, double now);
  void type(std::string_view text, double now);
  void key(std::string_view name, double now);
  /// Any other line of the console's language.
  void line(std::string_view text, double now);
  /// Writes what is left, and the wait until now.
  void end(double now);

 private:
  /// The finger's number in the script; 0 for one that it does not know.
  int number_of(int finger, screen::TouchPhase phase);
  void put_text();
  void put_touches();
  void put_steps(const std::vector<Step>& steps);
  void put_step(const Step& step);
  /// A tap or a drag as one line; empty when the steps are neither.
  std::string one_line_for(const std::vector<Step>& steps) const;
  void wait_until(double time);
  /// The seconds from the end of the script so far until this time, and the same once they have
  /// been written.
  double seconds_until(double time) const;
  double spend_until(double time);
  double rounded_seconds(double seconds) const;
  std::string written(CGPoint point) const;

  Fidelity fidelity_;
  double start_;
  Put put_;
  double written_ = 0;  // the seconds that the script has lasted so far
  std::map<int, int> fingers_;
  std::vector<Touch> touches_;
  std::string text_;  // typed, and not yet written
  double first_typed_ = 0;
  double last_typed_ = 0;
};

}  // namespace host::recording
