#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/desktop/now_playing/now_playing.h"
#include "tests/host/media_player/media_player_test.h"
#include "tests/support/private_bus.h"

namespace host::test {

/// The songs of `MediaPlayerTest` and what is told of them, with a bus and another program on it.
class DesktopTest : public MediaPlayerTest {
 protected:
  DesktopTest() {
    start();
    bus.open();
  }

  /// Starts the music again, as another run of the phone would.
  void restart() {
    now_playing.reset();
    start();
    follow();
  }
  void follow() {
    now_playing = std::make_unique<desktop::NowPlaying>(
        loop, *media_player::MediaService::current(), cover_folder());
  }
  std::string cover_folder() const { return folder_ / "covers"; }

  /// Waits until the cover of the playing song has its file, and the others have heard of it.
  void settle() {
    EXPECT_TRUE(run_until(loop, [this] { return !now_playing->state().awaits_cover; }));
    loop.run_ready();
  }

  /// Waits until all that the bus has for the phone has arrived.
  void catch_up() {
    bool is_answered = false;
    const auto question =
        bus.call({"org.freedesktop.DBus", "/", "org.freedesktop.DBus.Peer", "Ping"}, nullptr,
                 [&](const desktop::Answer&) { is_answered = true; });
    EXPECT_TRUE(run_until(loop, [&] { return is_answered; }));
  }

  Variable no_system_bus{"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/bus"};
  PrivateBus daemon;
  desktop::Bus bus{loop, desktop::Bus::Kind::kSession};
  std::unique_ptr<desktop::NowPlaying> now_playing;
};

}  // namespace host::test
