#include "tests/launcher_e2e/phone_test.h"
#include "tests/support/private_bus.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;

constexpr const char* kPlayer = "org.mpris.MediaPlayer2.sonavue";
constexpr const char* kPath = "/org/mpris/MediaPlayer2";

/// A phone in the session of a user with a bus of its own.
class DesktopPhones : public PhoneTest {
 protected:
  std::string playerctl(const std::string& command) {
    return host::test::run_program(loop_, {"playerctl", command}).text;
  }
  bool appears() {
    return host::test::run_until(loop_, [this] { return playerctl("-l") == "sonavue\n"; });
  }

  host::RealClock clock_;
  host::RunLoop loop_{clock_};
  host::test::PrivateBus bus_;
};

TEST_F(DesktopPhones, AreControlledFromOutside) {
  RunningPhone phone(headless({"--console", "--desktop"}));
  ASSERT_TRUE(appears()) << phone.errors();
  EXPECT_EQ(playerctl("play"), "");
  EXPECT_EQ(playerctl("status"), "Playing\n");
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] isPlaying]"), "YES");
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] togglePlayPause]"), "YES");
  EXPECT_EQ(playerctl("status"), "Paused\n");
  host::test::BusPeer peer(loop_);
  const auto root = [&](const char* method) {
    return peer.ask({kPlayer, kPath, "org.mpris.MediaPlayer2", method});
  };
  EXPECT_EQ(root("Raise"), "") << "without a window there is nothing to raise";
  EXPECT_EQ(root("Quit"), "");
  EXPECT_EQ(phone.wait_for_end(), 0);
}

TEST_F(DesktopPhones, WithAWindowAreControlledUnasked) {
  const host::test::Variable driver("SDL_VIDEODRIVER", "dummy");
  RunningPhone phone({"--root", root(), "--music", music()});
  ASSERT_TRUE(appears()) << phone.errors();
  host::test::BusPeer peer(loop_);
  const auto get = [&](const char* property) {
    return peer.ask({kPlayer, kPath, "org.freedesktop.DBus.Properties", "Get"},
                    [&](sd_bus_message* call) {
                      sd_bus_message_append(call, "ss", "org.mpris.MediaPlayer2", property);
                    });
  };
  EXPECT_EQ(get("CanRaise"), "true");
  EXPECT_EQ(peer.ask({kPlayer, kPath, "org.mpris.MediaPlayer2", "Raise"}), "");
  bus_.kill();
  ASSERT_TRUE(phone.waits_for_error("the session bus has ended"));
  bus_.start();
  ASSERT_TRUE(phone.waits_for_error("the session bus is back"));
  ASSERT_TRUE(appears());
  host::test::BusPeer next(loop_);
  EXPECT_EQ(next.ask({kPlayer, kPath, "org.mpris.MediaPlayer2", "Quit"}), "");
  EXPECT_EQ(phone.wait_for_end(), 0);
}

TEST_F(DesktopPhones, WithoutAWindowLeaveTheDesktopAlone) {
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] togglePlayPause]"), "YES");
  EXPECT_THAT(playerctl("-l"), HasSubstr("No players"));
}

TEST_F(DesktopPhones, LiveWithoutABus) {
  bus_.kill();
  fs::remove(bus_.address().substr(10));
  RunningPhone phone(headless({"--console", "--desktop"}));
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] togglePlayPause]"), "YES");
  EXPECT_EQ(phone.ask("quit"), "ok");
  EXPECT_EQ(phone.wait_for_end(), 0);
  EXPECT_EQ(phone.count_of_errors_with("the session bus"), 0) << phone.errors();
}

}  // namespace
