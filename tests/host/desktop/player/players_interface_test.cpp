#include "host/desktop/player/players_interface.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/caught_log.h"
#include "tests/support/desktop_fixture.h"

namespace {

using host::desktop::Bus;
using host::desktop::PlayersInterface;
using host::test::BusPeer;
using host::test::run_until;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

class APlayer : public host::test::DesktopTest {
 protected:
  APlayer() { follow(); }
  ~APlayer() override {
    interface_.reset();
    now_playing.reset();
  }

  std::unique_ptr<PlayersInterface> make_interface(Bus& on) {
    return std::make_unique<PlayersInterface>(
        on, *now_playing, PlayersInterface::Window{[this] { ++raised_; }, [this] { ++quits_; }});
  }
  /// Begins with the interface on the bus, and with a program that records its signals.
  void appear() {
    interface_ = make_interface(bus);
    ASSERT_TRUE(run_until(loop, [this] { return has_name(name_); }));
    peer_.record(PlayersInterface::kPath);
  }
  bool has_name(const std::string& name) {
    return peer_.ask({"org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner"},
                     [&](sd_bus_message* call) {
                       sd_bus_message_append(call, "s", name.c_str());
                     }) == "true";
  }

  std::string get(const char* property, const char* interface = PlayersInterface::kPlayer) {
    return peer_.ask(
        {name_.c_str(), PlayersInterface::kPath, kProperties, "Get"},
        [&](sd_bus_message* call) { sd_bus_message_append(call, "ss", interface, property); });
  }
  std::string call(const char* method, const Bus::Fill& fill = nullptr,
                   const char* interface = PlayersInterface::kPlayer) {
    return peer_.ask({name_.c_str(), PlayersInterface::kPath, interface, method}, fill);
  }
  template <class Value>
  std::string set(const char* property, const char* type, Value value) {
    return peer_.ask(
        {name_.c_str(), PlayersInterface::kPath, kProperties, "Set"}, [&](sd_bus_message* call) {
          sd_bus_message_append(call, "ssv", PlayersInterface::kPlayer, property, type, value);
        });
  }
  std::string set_position(const std::string& track, std::int64_t position) {
    return call("SetPosition", [&](sd_bus_message* message) {
      sd_bus_message_append(message, "ox", track.c_str(), position);
    });
  }
  std::string seek(std::int64_t offset) {
    return call("Seek",
                [&](sd_bus_message* message) { sd_bus_message_append(message, "x", offset); });
  }
  std::string track() { return "/sonavue/song/" + std::to_string(now_playing->state().song->id); }
  std::vector<std::string> signals() {
    settle();
    peer_.catch_up_with(name_.c_str());
    return peer_.take_signals();
  }

  std::string name_ = PlayersInterface::kName;
  BusPeer peer_{loop};
  std::unique_ptr<PlayersInterface> interface_;
  int raised_ = 0;
  int quits_ = 0;
};

TEST_F(APlayer, IntroducesItself) {
  appear();
  const auto root = [this](const char* property) { return get(property, PlayersInterface::kRoot); };
  EXPECT_EQ(root("Identity"), "\"Sonavue\"");
  EXPECT_EQ(root("DesktopEntry"), "\"sonavue\"");
  EXPECT_EQ(root("CanQuit"), "true");
  EXPECT_EQ(root("CanRaise"), "true");
  EXPECT_EQ(root("HasTrackList"), "false");
  EXPECT_EQ(root("SupportedUriSchemes"), "[\"file\"]");
  EXPECT_THAT(root("SupportedMimeTypes"), HasSubstr("\"audio/flac\""));
}

TEST_F(APlayer, RaisesItsWindowAndQuits) {
  appear();
  EXPECT_EQ(call("Raise", nullptr, PlayersInterface::kRoot), "");
  EXPECT_EQ(raised_, 1);
  EXPECT_EQ(call("Quit", nullptr, PlayersInterface::kRoot), "");
  EXPECT_EQ(quits_, 1);
}

TEST_F(APlayer, TellsItsButtonsTrueToTheQueue) {
  appear();
  EXPECT_EQ(get("CanPlay"), "true");
  EXPECT_EQ(get("CanPause"), "false");
  EXPECT_EQ(get("CanSeek"), "false");
  EXPECT_EQ(get("CanGoNext"), "false");
  EXPECT_EQ(get("CanControl"), "true");
  play("Alpha");
  settle();
  EXPECT_EQ(get("CanPause"), "true");
  EXPECT_EQ(get("CanSeek"), "true");
  EXPECT_EQ(get("CanGoNext"), "true");
  EXPECT_EQ(get("CanGoPrevious"), "false");
  play("Delta");
  settle();
  EXPECT_EQ(get("CanGoNext"), "false");
  EXPECT_EQ(get("CanGoPrevious"), "true");
}

TEST_F(APlayer, ButtonsThatCannotBePressedDoNothing) {
  appear();
  play("Delta");
  advance(3);
  signals();
  EXPECT_EQ(call("Next"), "");
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Delta");
  play("Alpha");
  advance(3);
  signals();
  EXPECT_EQ(call("Previous"), "");
  EXPECT_NEAR(player().currentPlaybackTime(), 3, 1e-6) << "it would begin again";
  EXPECT_THAT(signals(), IsEmpty());
}

TEST_F(APlayer, TellsChangesOfThePhoneOnce) {
  appear();
  play("Bravo");
  const auto told = signals();
  ASSERT_EQ(told.size(), 1u) << testing::PrintToString(told);
  EXPECT_THAT(told[0], HasSubstr("\"PlaybackStatus\": \"Playing\""));
  EXPECT_THAT(told[0], HasSubstr("\"xesam:title\": \"Bravo\""));
  EXPECT_THAT(told[0], HasSubstr("\"CanGoNext\": true"));
  EXPECT_THAT(told[0], Not(HasSubstr("Position")));
  advance(5);
  EXPECT_THAT(signals(), IsEmpty()) << "time that passes is no change";
  EXPECT_EQ(get("Position"), "5000000");
}

TEST_F(APlayer, VolumeGoesBothWays) {
  appear();
  media().setVolume(0.3F);
  EXPECT_THAT(signals(), ElementsAre("PropertiesChanged \"org.mpris.MediaPlayer2.Player\" "
                                     "{\"Volume\": 0.3} []"));
  const auto set = [this](double volume) { return this->set("Volume", "d", volume); };
  EXPECT_EQ(set(0.5), "");
  EXPECT_EQ(media().volume(), 0.5F);
  EXPECT_EQ(set(-3), "");
  EXPECT_EQ(media().volume(), 0.0F);
  EXPECT_EQ(set(17), "");
  EXPECT_EQ(media().volume(), 1.0F);
  EXPECT_EQ(set(std::nan("")), "");
  EXPECT_EQ(media().volume(), 1.0F);
}

TEST_F(APlayer, RepeatingAndShufflingGoBothWays) {
  appear();
  EXPECT_EQ(get("LoopStatus"), "\"None\"");
  EXPECT_EQ(get("Shuffle"), "false");
  set_repeat_mode(MPMusicRepeatModeOne);
  set_shuffle_mode(MPMusicShuffleModeSongs);
  EXPECT_THAT(signals(), ElementsAre("PropertiesChanged \"org.mpris.MediaPlayer2.Player\" "
                                     "{\"LoopStatus\": \"Track\" \"Shuffle\": true} []"));
  EXPECT_EQ(set("LoopStatus", "s", "Playlist"), "");
  EXPECT_EQ(set("Shuffle", "b", 0), "");
  EXPECT_EQ(repeat_mode(), MPMusicRepeatModeAll);
  EXPECT_EQ(shuffle_mode(), MPMusicShuffleModeOff);
  EXPECT_EQ(set("LoopStatus", "s", "Sometimes"), "error: org.freedesktop.DBus.Error.InvalidArgs");
  EXPECT_EQ(get("LoopStatus"), "\"Playlist\"");
}

TEST_F(APlayer, ARepeatedSongIsAJumpToItsStart) {
  appear();
  set_repeat_mode(MPMusicRepeatModeOne);
  play("Alpha");
  signals();
  advance(8.5);
  const auto told = signals();
  ASSERT_EQ(told.size(), 1u) << testing::PrintToString(told);
  EXPECT_THAT(told[0], HasSubstr("Seeked"));
}

TEST_F(APlayer, SeeksWithinTheSongAndSaysSo) {
  appear();
  play("Bravo");
  advance(2);
  signals();
  EXPECT_EQ(set_position(track(), 7'000'000), "");
  EXPECT_THAT(signals(), ElementsAre("Seeked 7000000"));
  EXPECT_EQ(seek(3'000'000), "");
  EXPECT_THAT(signals(), ElementsAre("Seeked 10000000"));
  EXPECT_EQ(seek(-99'000'000), "");
  EXPECT_THAT(signals(), ElementsAre("Seeked 0"));
  player().setCurrentPlaybackTime(4);
  EXPECT_THAT(signals(), ElementsAre("Seeked 4000000")) << "a jump of the phone's own";
}

TEST_F(APlayer, IgnoresPlacesOutsideOfTheSong) {
  appear();
  play("Bravo");
  signals();
  EXPECT_EQ(set_position(track(), -1), "");
  EXPECT_EQ(set_position(track(), 20'500'000), "");
  EXPECT_EQ(set_position("/sonavue/song/1", 1'000'000), "") << "of a song that is over";
  EXPECT_EQ(set_position("/org/mpris/MediaPlayer2/TrackList/NoTrack", 1'000'000), "");
  EXPECT_EQ(get("Position"), "0");
  EXPECT_THAT(signals(), IsEmpty());
}

TEST_F(APlayer, SeekingBeyondTheEndGoesToTheNextSong) {
  appear();
  play("Bravo");
  signals();
  EXPECT_EQ(seek(std::numeric_limits<std::int64_t>::max()), "");
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Charlie");
  EXPECT_EQ(seek(std::numeric_limits<std::int64_t>::min()), "");
  EXPECT_EQ(get("Position"), "0");
}

TEST_F(APlayer, OpensFilesOfMusic) {
  appear();
  const auto open = [this](const std::string& address) {
    return call("OpenUri", [&](sd_bus_message* message) {
      sd_bus_message_append(message, "s", address.c_str());
    });
  };
  EXPECT_EQ(open("file://" + song_path("c.ogg")), "");
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Charlie");
  EXPECT_EQ(open("file://localhost" + song_path("%62.flac")), "");
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
  EXPECT_EQ(get("CanGoNext"), "true") << "the other songs of the library follow";
  for (const char* const address :
       {"file:///etc/passwd", "file:///dev/zero", "file:///gone%ff%0a.flac", "file:relative.flac",
        "https://example.org/x.mp3", "\x01://", ""}) {
    EXPECT_EQ(open(address), "error: org.freedesktop.DBus.Error.InvalidArgs") << address;
  }
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
  std::filesystem::copy(song_path("d.flac"), folder_ / "e.flac");
  EXPECT_EQ(open("file://" + folder_.path() + "/music/../e.flac"), "");
  EXPECT_EQ(engine_path(), folder_ / "e.flac");
}

TEST_F(APlayer, OfTheSameNameIsAnInstance) {
  BusPeer first(loop);
  ASSERT_TRUE(first.take_name(PlayersInterface::kName));
  name_ += ".instance" + std::to_string(getpid());
  appear();
  EXPECT_EQ(get("Identity", PlayersInterface::kRoot), "\"Sonavue\"");
}

TEST_F(APlayer, WithoutAnyNameSaysSo) {
  BusPeer first(loop);
  ASSERT_TRUE(first.take_name(PlayersInterface::kName));
  ASSERT_TRUE(first.take_name((name_ + ".instance" + std::to_string(getpid())).c_str()));
  const host::test::CaughtLog log;
  interface_ = make_interface(bus);
  EXPECT_TRUE(run_until(loop, [&] { return !log.text().empty(); }));
  EXPECT_THAT(log.text(), HasSubstr("another player has it"));
}

TEST_F(APlayer, IsThereAgainWhenTheBusIs) {
  appear();
  play("Bravo");
  settle();
  const host::test::CaughtLog log;
  daemon.kill();
  ASSERT_TRUE(run_until(loop, [&] { return !bus.is_open(); }));
  media().changeTrack(1);
  daemon.start();
  advance(1);
  peer_.bus.close();
  ASSERT_TRUE(peer_.bus.open());
  ASSERT_TRUE(run_until(loop, [this] { return has_name(name_); }));
  EXPECT_THAT(get("Metadata"), HasSubstr("\"xesam:title\": \"Charlie\""));
  EXPECT_EQ(get("PlaybackStatus"), "\"Playing\"");
}

TEST_F(APlayer, AtRestSendsAndWakesNothing) {
  appear();
  signals();
  EXPECT_EQ(loop.next_due(), std::numeric_limits<double>::infinity());
  play("Bravo");
  signals();
  // The end of the song, which the stepped clock waits for.
  EXPECT_NEAR(loop.next_due() - clock.now(), 20, 0.1);
}

}  // namespace
