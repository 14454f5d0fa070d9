#pragma once

#include <functional>
#include <optional>

#include "host/basics/descriptor.h"
#include "host/launcher/life_signs.h"
#include "host/runtime/run_loop.h"

namespace host::launcher {

/// The home screen's end of its connection to the supervisor.
class Lifeline {
 public:
  /// Without a supervisor the descriptor is -1.
  Lifeline(RunLoop& loop, int descriptor);
  ~Lifeline();
  Lifeline(const Lifeline&) = delete;
  Lifeline& operator=(const Lifeline&) = delete;

  struct Orders {
    std::function<void()> show_window;
    std::function<void()> play_files;
  };
  /// Call these when the loop's first turn comes next. A loop that answers questions is noticed
  /// when it stops turning.
  void begin(Orders orders);
  void answer_questions() const;
  void say(LifeSign sign) const;

 private:
  void listen();

  RunLoop& loop_;
  Descriptor descriptor_;
  Orders orders_;
  std::optional<RunLoop::Id> watch_;
};

}  // namespace host::launcher
