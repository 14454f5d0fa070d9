#pragma once

#include <optional>

namespace host::launcher {

/// Notices when a process no longer answers. Time counts only while someone looks: a pause much
/// longer than those between the looks was one of this process or of the machine.
class Heartbeat {
 public:
  static constexpr double kPatience = 5;  // seconds
  static constexpr double kPause = 1;     // between an answer and the next question

  /// All times are multiplied by `scale`; 0 means endless patience.
  explicit Heartbeat(double scale) : scale_(scale) {}

  /// Forgets the process.
  void stop() { last_look_.reset(); }
  /// The process has answered a question, or has spoken for the first time.
  void answered(double now);

  enum class Finding { Nothing, ShouldAsk, IsHung };
  Finding look(double now);
  /// Whether there is a process to look after; look at least this often then, in seconds.
  bool is_beating() const { return scale_ > 0 && last_look_.has_value(); }
  double longest_pause() const { return scale_ * kPause; }
  double patience() const { return scale_ * kPatience; }

 private:
  const double scale_;
  std::optional<double> last_look_;
  double waited_ = 0;
  bool has_asked_ = false;
};

}  // namespace host::launcher
