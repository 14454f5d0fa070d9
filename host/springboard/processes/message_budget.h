#pragma once

namespace host::springboard {

/// Counts what an application says, which it could do without end.
class MessageBudget {
 public:
  /// No more than these are read in one turn of the loop; the rest waits for the next frame.
  static constexpr int kMessagesATurn = 64;
  /// An application draws 60 frames a second and steers the player now and then.
  static constexpr int kMessagesASecond = 1000;
  static constexpr int kSecondsOfFlood = 2;

  /// One more, at this time of the clock.
  void count(double now);
  /// Did each of the last seconds bring more than any honest application says?
  bool is_flooded() const { return flooded_seconds_ >= kSecondsOfFlood; }

 private:
  double second_began_ = 0;
  int in_this_second_ = 0;
  int flooded_seconds_ = 0;
};

}  // namespace host::springboard
