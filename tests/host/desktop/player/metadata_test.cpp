#include <gmock/gmock.h>

#include <filesystem>

#include "host/desktop/player/players_interface.h"
#include "tests/support/desktop_fixture.h"

namespace {

using host::desktop::PlayersInterface;
using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

class Metadata : public host::test::DesktopTest {
 protected:
  ~Metadata() override {
    interface_.reset();
    now_playing.reset();
  }

  /// Plays a song with these tags and returns what another program reads of it.
  std::string of(const host::media::SongTags& tags, const std::string& file = "e.flac",
                 const std::vector<std::uint8_t>& cover = {}) {
    media_tests::write_song(song_path(file), tags, cover, 3);
    restart();
    interface_ = std::make_unique<PlayersInterface>(bus, *now_playing, PlayersInterface::Window{});
    const auto& tracks = host::media_player::MediaService::current()->items()->library().tracks();
    const auto written = std::ranges::find(tracks, song_path(file), &host::media::Track::path);
    player().setQueueWithQuery(MPMediaQuery::alloc().init().autorelease());
    player().setNowPlayingItem(
        host::media_player::MediaService::current()->items()->item_with_id(written->id));
    settle();
    host::test::BusPeer peer(loop);
    peer.catch_up_with("org.freedesktop.DBus");
    return peer.ask({PlayersInterface::kName, PlayersInterface::kPath,
                     "org.freedesktop.DBus.Properties", "Get"},
                    [](sd_bus_message* call) {
                      sd_bus_message_append(call, "ss", PlayersInterface::kPlayer, "Metadata");
                    });
  }

  std::unique_ptr<PlayersInterface> interface_;
};

TEST_F(Metadata, OfASongWithEverything) {
  host::media::SongTags tags;
  tags.title = "Füür & \"Wasser\"";
  tags.artist = "Xenia";
  tags.album_artist = "Xenia und Yves";
  tags.album = "Élan";
  tags.genre = "Folk";
  tags.composer = "Zoé";
  tags.track_number = 3;
  tags.disc_number = 2;
  const std::string cover = cover_folder() + "/[0-9a-f]+\\.jpg";
  EXPECT_THAT(
      of(tags, "Füür #1.flac", media_tests::jpeg_picture(64, 32, 0xff0000)),
      MatchesRegex("\\{\"mpris:trackid\": \"/sonavue/song/[0-9]+\" \"mpris:length\": 3000000 "
                   "\"mpris:artUrl\": \"file://" +
                   cover +
                   "\" "
                   "\"xesam:title\": \"Füür & \"Wasser\"\" \"xesam:artist\": \\[\"Xenia\"\\] "
                   "\"xesam:album\": \"Élan\" \"xesam:albumArtist\": \\[\"Xenia und Yves\"\\] "
                   "\"xesam:genre\": \\[\"Folk\"\\] \"xesam:composer\": \\[\"Zoé\"\\] "
                   "\"xesam:trackNumber\": 3 \"xesam:discNumber\": 2 "
                   "\"xesam:url\": \"file://" +
                   (folder_ / "music") + "/F%C3%BC%C3%BCr%20%231\\.flac\"\\}"));
}

TEST_F(Metadata, OfASongWithOnlyATitle) {
  host::media::SongTags tags;
  tags.title = "Ünter \"uns\"";
  EXPECT_THAT(
      of(tags),
      MatchesRegex("\\{\"mpris:trackid\": \"[^\"]+\" \"mpris:length\": 3000000 "
                   "\"xesam:title\": \"Ünter \"uns\"\" \"xesam:url\": \"file://[^\"]+\"\\}"));
}

TEST_F(Metadata, OfNoSong) {
  restart();
  interface_ = std::make_unique<PlayersInterface>(bus, *now_playing, PlayersInterface::Window{});
  host::test::BusPeer peer(loop);
  peer.catch_up_with("org.freedesktop.DBus");
  EXPECT_EQ(peer.ask({PlayersInterface::kName, PlayersInterface::kPath,
                      "org.freedesktop.DBus.Properties", "Get"},
                     [](sd_bus_message* call) {
                       sd_bus_message_append(call, "ss", PlayersInterface::kPlayer, "Metadata");
                     }),
            "{}");
}

TEST_F(Metadata, OfTagsThatNoBusWouldTake) {
  host::media::SongTags tags;
  tags.title = "\x1b[31mred\xc2\x9b\xef\xbf\xbf" + std::string(10'000, 'x');
  tags.artist = "one\ntwo";
  tags.album = "caf\xe9\xe2\x80\xae";
  const std::string metadata = of(tags);
  EXPECT_THAT(metadata, AllOf(HasSubstr("red"), HasSubstr("xxxx…\""), Not(HasSubstr("\x1b")),
                              Not(HasSubstr("\n")), Not(HasSubstr("\xe2\x80\xae"))));
  EXPECT_LT(metadata.size(), 2000u);
}

TEST_F(Metadata, OfASongWhoseCoverHasGone) {
  host::media::SongTags tags;
  tags.title = "Echo";
  const std::string cover = folder_ / "music/cover.jpg";
  media_tests::write_bytes(cover, media_tests::as_text(media_tests::jpeg_picture(8, 8, 0x00ff00)));
  EXPECT_THAT(of(tags), HasSubstr("mpris:artUrl"));
  std::filesystem::remove_all(cover_folder());
  // The library still names the cover that its scan has found.
  std::filesystem::remove(cover);
  interface_.reset();
  follow();
  interface_ = std::make_unique<PlayersInterface>(bus, *now_playing, PlayersInterface::Window{});
  settle();
  EXPECT_EQ(now_playing->state().song->cover_address, "");
}

}  // namespace
