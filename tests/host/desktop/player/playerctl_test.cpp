#include <gmock/gmock.h>

#include <regex>

#include "host/desktop/player/players_interface.h"
#include "tests/support/desktop_fixture.h"

namespace {

using host::desktop::PlayersInterface;
using host::test::Output;
using testing::HasSubstr;
using testing::StartsWith;

/// A user who controls the phone with a command line, and a monitor of the signals on the bus.
class Playerctl : public host::test::DesktopTest {
 protected:
  Playerctl() {
    follow();
    interface_ = std::make_unique<PlayersInterface>(bus, *now_playing, PlayersInterface::Window{});
    monitor_.catch_up_with("org.freedesktop.DBus");
    monitor_.record(PlayersInterface::kPath);
  }
  ~Playerctl() override {
    interface_.reset();
    now_playing.reset();
  }

  Output playerctl(const std::string& command) {
    std::vector<std::string> arguments = {"playerctl"};
    std::istringstream words(command);
    for (std::string word; words >> word;)
      arguments.push_back(word);
    Output output = host::test::run_program(loop, arguments);
    if (output.text.ends_with('\n')) output.text.pop_back();
    return output;
  }

  /// The signals since the last call; songs and covers by short names.
  std::vector<std::string> signals() {
    settle();
    monitor_.catch_up_with(PlayersInterface::kName);
    std::vector<std::string> short_ones;
    for (const std::string& signal : monitor_.take_signals()) {
      static const std::regex metadata("\"Metadata\": \\{(.*?)\"xesam:title\": (\"[^\"]*\").*?\\}");
      static const std::regex interface("\"org.mpris.MediaPlayer2.Player\" ");
      short_ones.push_back(
          std::regex_replace(std::regex_replace(signal, metadata, "$2"), interface, ""));
    }
    return short_ones;
  }

  host::test::BusPeer monitor_{loop};
  std::unique_ptr<PlayersInterface> interface_;
};

struct Row {
  const char* command;
  const char* output;
  std::vector<std::string> signals;
};

TEST_F(Playerctl, EveryCommandDoesAndTellsWhatTheTableSays) {
  const std::string charlie = "open " + song_path("c.ogg");
  host::media::SongTags tags;
  tags.title = "X-ray";
  media_tests::write_song(folder_ / "x ray.flac", tags, {}, 2);
  media_tests::write_bytes(folder_ / "letter.txt", "no music");
  const std::string xray = "open file://" + folder_.path() + "/x%20ray.flac";
  const std::string letter = "open " + folder_.path() + "/letter.txt";
  const Row table[] = {
      {"-l", "sonavue", {}},
      {"status", "Stopped", {}},
      {"metadata", "No player could handle this command", {}},
      {"pause", "", {}},
      {"play",
       "",
       {"PropertiesChanged {\"PlaybackStatus\": \"Playing\" \"Alpha\" \"CanGoNext\": true "
        "\"CanPause\": true \"CanSeek\": true} []",
        "PropertiesChanged {\"Alpha\"} []"}},
      {"status", "Playing", {}},
      {"play", "", {}},
      {"metadata title", "Alpha", {}},
      {"metadata artist", "Xenia", {}},
      {"metadata mpris:length", "8000000", {}},
      {"pause", "", {"PropertiesChanged {\"PlaybackStatus\": \"Paused\"} []"}},
      {"pause", "", {}},
      {"play-pause", "", {"PropertiesChanged {\"PlaybackStatus\": \"Playing\"} []"}},
      {"play-pause", "", {"PropertiesChanged {\"PlaybackStatus\": \"Paused\"} []"}},
      {"previous", "", {}},
      {"next", "", {"PropertiesChanged {\"Bravo\" \"CanGoPrevious\": true} []"}},
      {"status", "Paused", {}},
      {"position 5", "", {"Seeked 5000000"}},
      {"position", "5.000000", {}},
      {"position 2.5+", "", {"Seeked 7500000"}},
      {"position 6-", "", {"Seeked 1500000"}},
      {"position 60-", "", {"Seeked 0"}},
      {"position 60", "", {}},
      {"position 60+", "", {"PropertiesChanged {\"Charlie\"} []"}},
      {"previous", "", {"PropertiesChanged {\"Bravo\"} []"}},
      {"volume", "0.750000", {}},
      {"volume 0.5", "", {"PropertiesChanged {\"Volume\": 0.5} []"}},
      {"volume 0.1+", "", {"PropertiesChanged {\"Volume\": 0.6} []"}},
      {"volume 0.2-", "", {"PropertiesChanged {\"Volume\": 0.4} []"}},
      {"volume 3", "", {"PropertiesChanged {\"Volume\": 1} []"}},
      {"volume", "1.000000", {}},
      {charlie.c_str(), "", {"PropertiesChanged {\"PlaybackStatus\": \"Playing\" \"Charlie\"} []"}},
      {"open file:///etc/passwd", "/etc/passwd is not music of a kind that can be played", {}},
      {letter.c_str(), "letter.txt is not music of a kind that can be played", {}},
      {"open file:///nowhere.flac", "/nowhere.flac cannot be found", {}},
      {"open https://example.org/song.mp3", "song.mp3 is not the address of a file", {}},
      {"loop", "None", {}},
      {"loop Track", "", {"PropertiesChanged {\"LoopStatus\": \"Track\"} []"}},
      {"loop", "Track", {}},
      {"loop Track", "", {}},
      {"next", "", {"PropertiesChanged {\"Delta\"} []"}},
      {"loop None", "", {"PropertiesChanged {\"LoopStatus\": \"None\" \"CanGoNext\": false} []"}},
      {"loop Playlist",
       "",
       {"PropertiesChanged {\"LoopStatus\": \"Playlist\" \"CanGoNext\": true} []"}},
      {"next", "", {"PropertiesChanged {\"Alpha\"} []"}},
      {"previous", "", {"PropertiesChanged {\"Delta\"} []"}},
      {"loop None", "", {"PropertiesChanged {\"LoopStatus\": \"None\" \"CanGoNext\": false} []"}},
      {"shuffle", "Off", {}},
      {"shuffle On",
       "",
       {"PropertiesChanged {\"Shuffle\": true \"CanGoNext\": true \"CanGoPrevious\": false} []"}},
      {"shuffle", "On", {}},
      {"shuffle On", "", {}},
      {"shuffle Toggle",
       "",
       {"PropertiesChanged {\"Shuffle\": false \"CanGoNext\": false \"CanGoPrevious\": true} []"}},
      {"shuffle Off", "", {}},
      {"previous", "", {"PropertiesChanged {\"Charlie\" \"CanGoNext\": true} []"}},
      {"next", "", {"PropertiesChanged {\"Delta\" \"CanGoNext\": false} []"}},
      {"next", "", {}},
      {"stop",
       "",
       {"PropertiesChanged {\"PlaybackStatus\": \"Stopped\" \"Metadata\": {} \"CanPause\": false "
        "\"CanSeek\": false} []"}},
      {"stop", "", {}},
      {"status", "Stopped", {}},
      {"play-pause",
       "",
       {"PropertiesChanged {\"PlaybackStatus\": \"Playing\" \"Delta\" \"CanPause\": true "
        "\"CanSeek\": true} []"}},
      {xray.c_str(), "", {"PropertiesChanged {\"X-ray\" \"CanGoPrevious\": false} []"}},
      {"status", "Playing", {}},
      {"metadata title", "X-ray", {}},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.command);
    EXPECT_THAT(playerctl(row.command).text, HasSubstr(row.output));
    EXPECT_EQ(signals(), row.signals);
  }
}

TEST_F(Playerctl, ShowsASongWithAnUmlautAQuoteAndNoCover) {
  host::media::SongTags tags;
  tags.title = "Füür \"Wasser\"";
  tags.artist = "Zoë";
  media_tests::write_song(song_path("e.flac"), tags);
  interface_.reset();
  restart();
  interface_ = std::make_unique<PlayersInterface>(bus, *now_playing, PlayersInterface::Window{});
  EXPECT_EQ(playerctl("open " + song_path("e.flac")).text, "");
  EXPECT_EQ(playerctl("metadata title").text, "Füür \"Wasser\"");
  EXPECT_EQ(playerctl("metadata artist").text, "Zoë");
  EXPECT_EQ(playerctl("metadata xesam:url").text, "file://" + song_path("e.flac"));
  EXPECT_EQ(playerctl("metadata mpris:artUrl").status, 1);
  EXPECT_EQ(playerctl("metadata album").status, 1);
}

TEST_F(Playerctl, ShowsACover) {
  EXPECT_EQ(playerctl("open " + song_path("a.flac")).text, "");
  settle();
  const std::string address = playerctl("metadata mpris:artUrl").text;
  ASSERT_THAT(address, StartsWith("file://" + cover_folder()));
  const auto header = host::media::read_picture_file_header(address.substr(7));
  EXPECT_EQ(header.width, 64);
  EXPECT_EQ(header.height, 32);
}

TEST_F(Playerctl, FollowsAPlayerThatLeaves) {
  EXPECT_EQ(playerctl("-l").text, "sonavue");
  interface_.reset();
  EXPECT_THAT(playerctl("-l").text, HasSubstr("No players"));
}

}  // namespace
