#pragma once

#include <functional>
#include <string>

#include "host/console/session.h"

namespace host::console {

/// Serves the line protocol on a descriptor: the session executes every line, in order, and answers
/// it with one line.
class LineServer {
 public:
  /// `on_quit` is called after `quit` has been answered, or when the other end is gone.
  LineServer(int descriptor, Session& session, std::function<void()> on_quit);

  int descriptor() const { return descriptor_; }

  /// Reads the available bytes and executes every complete line. Call it when the descriptor is
  /// readable. A nested call, while a line is being executed, does nothing. Input that ends in the
  /// middle of a line is answered with an error.
  void serve();

 private:
  void end();
  void execute_lines();
  void answer(const Answer& answer);

  int descriptor_;
  Session& session_;
  std::function<void()> on_quit_;
  std::string pending_;
  bool line_is_too_long_ = false;
  bool busy_ = false;
};

}  // namespace host::console
