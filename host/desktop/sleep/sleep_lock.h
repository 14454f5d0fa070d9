#pragma once

#include <string>

#include "host/basics/descriptor.h"
#include "host/desktop/bus/bus.h"
#include "host/desktop/now_playing/now_playing.h"

namespace host::desktop {

/// Keeps the machine from going to sleep while music plays; the screen may go dark. The desktop's
/// portal is asked first, then the login service. A machine without both sleeps when it likes.
class SleepLock final : private BusClient, private NowPlayingListener {
 public:
  SleepLock(RunLoop& loop, Bus& session, NowPlaying& now_playing);
  ~SleepLock() override;
  SleepLock(const SleepLock&) = delete;
  SleepLock& operator=(const SleepLock&) = delete;

 private:
  void bus_did_open() override { ask(); }
  void bus_did_close() override;
  void player_did_change(const PlayerState& state) override;

  void ask();
  void ask_portal();
  void take_request(const Answer& answer);
  void portal_changed(sd_bus_message* change);
  void ask_login_service();
  void take_lock(const Answer& answer);
  void give_back();
  void complain(const std::string& problem);

  Bus& session_;
  Bus system_;
  NowPlaying& now_playing_;
  bool is_wanted_ = false;
  // While one of the two has not answered. A question is never taken back, since what it grants
  // must be.
  SlotRef portal_question_;
  SlotRef login_question_;
  SlotRef portal_watch_;
  std::string request_;  // what the portal has granted
  Descriptor lock_;      // what the login service has granted
  bool has_complained_ = false;
};

}  // namespace host::desktop
