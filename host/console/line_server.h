#pragma once

#include <functional>
#include <string>

#include "host/console/session.h"

namespace host::console {

/// Serves the line protocol on a descriptor: every line is carried out by the session and answered
/// with one line, in the order in which they come.
class LineServer {
 public:
  // Longer lines are answered with an error, without being kept.
  static constexpr std::size_t kLongestLine = 64 * 1024;

  /// `on_quit` is called once `quit` has been answered, or when the other end is gone.
  LineServer(int descriptor, Session& session, std::function<void()> on_quit);

  int descriptor() const { return descriptor_; }

  /// Reads what is there and carries out every whole line of it. To be called when the descriptor
  /// can be read. A call from inside a line that is being carried out does nothing.
  void serve();

 private:
  void carry_out_lines();
  void answer(const Answer& answer);

  int descriptor_;
  Session& session_;
  std::function<void()> on_quit_;
  std::string pending_;
  bool line_is_too_long_ = false;
  bool busy_ = false;
};

}  // namespace host::console
