#pragma once

namespace host::springboard {

/// Counts an application's messages, to detect one that floods the home screen.
class MessageBudget {
 public:
  /// The most that are read in one turn of the loop; the rest waits for the next frame.
  static constexpr int kMessagesPerTurn = 64;
  /// Ample: an application draws 60 frames a second and steers the player now and then.
  static constexpr int kMessagesPerSecond = 1000;
  static constexpr int kSecondsOfFlood = 2;

  /// Counts a message that arrived at the time `now`, in seconds.
  void count(double now);
  /// True when each of the last seconds brought more messages than any honest application sends.
  bool is_flooded() const { return flooded_seconds_ >= kSecondsOfFlood; }

 private:
  double second_began_ = 0;
  int in_this_second_ = 0;
  int flooded_seconds_ = 0;
};

}  // namespace host::springboard
