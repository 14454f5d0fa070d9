#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/application/wire/messages.h"
#include "host/runtime/run_loop.h"

namespace host::springboard {

class ApplicationProcess;

/// Lets the application in front observe and control the player, which belongs to the home screen.
class PlayerDesk {
 public:
  using Front = std::function<ApplicationProcess*()>;

  explicit PlayerDesk(Front front) : front_(std::move(front)) {}
  ~PlayerDesk();
  PlayerDesk(const PlayerDesk&) = delete;
  PlayerDesk& operator=(const PlayerDesk&) = delete;

  void carry_out(const application::SteerPlayer& command);
  /// Reports to the application in front what is playing, now and after every change.
  void watch(bool watches);

 private:
  void poll();
  void poll_soon();

  Front front_;
  std::optional<RunLoop::Id> poll_timer_;
  std::optional<application::PlaybackIs> reported_;
  double reported_at_ = 0;
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
