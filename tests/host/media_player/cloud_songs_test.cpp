#include <gmock/gmock.h>

#include <filesystem>

#include "platform/Foundation/NSValue.h"
#include "tests/host/media_player/media_player_test.h"

namespace {

using host::test::text;
using host::test::titles;
using testing::ElementsAre;

// With a song from the cloud between Bravo and Charlie.
class LibraryCloudSongs : public host::test::MediaPlayerTest {
 protected:
  LibraryCloudSongs() {
    media_tests::write_bytes(folder_ / "music/far.png",
                             media_tests::as_text(media_tests::png_picture(8, 8, 0x00ff00)));
    media_tests::write_bytes(song_path("c.cloud.toml"),
                             "title = 'Brume'\nartist = 'Xenia'\nalbum = 'One'\ntrack = 3\n"
                             "duration = 61\ncover = 'far.png'");
    start();
  }

  std::string current_title() const {
    return text(player().nowPlayingItem().valueForProperty(MPMediaItemPropertyTitle));
  }

  static NSArray found(objc::Object value, NSString property) {
    const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
    query.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(value, property));
    return query.items();
  }
};

TEST_F(LibraryCloudSongs, AreInEveryQueryAndMarkedAsCloudSongs) {
  const MPMediaQuery all = MPMediaQuery::alloc().init().autorelease();
  EXPECT_THAT(titles(all.items()), ElementsAre("Alpha", "Bravo", "Brume", "Charlie", "Delta"));
  const MPMediaItem brume = item("Brume");
  const auto number = [&](NSString property) {
    return objc::cast<NSNumber>(brume.valueForProperty(property));
  };
  EXPECT_TRUE(number(MPMediaItemPropertyIsCloudItem).boolValue());
  EXPECT_EQ(number(MPMediaItemPropertyMediaType).integerValue(), 1);
  EXPECT_EQ(number(MPMediaItemPropertyPlaybackDuration).doubleValue(), 61);
  const auto artwork =
      objc::cast<MPMediaItemArtwork>(brume.valueForProperty(MPMediaItemPropertyArtwork));
  EXPECT_TRUE(artwork.imageWithSize({8, 8}));
  EXPECT_THAT(titles(found(number(MPMediaItemPropertyAlbumPersistentID).stringValue(),
                           MPMediaItemPropertyAlbumPersistentID)),
              ElementsAre("Alpha", "Bravo", "Brume"));
  EXPECT_THAT(titles(found(NSNumber::numberWithBool(YES), MPMediaItemPropertyIsCloudItem)),
              ElementsAre("Brume"));
}

TEST_F(LibraryCloudSongs, AreSkippedInBothDirections) {
  play("Bravo");
  const media_tests::CapturedLog log;
  media().changeTrack(1);
  EXPECT_EQ(current_title(), "Charlie");
  EXPECT_EQ(engine_path(), song_path("c.ogg"));
  EXPECT_EQ(log.count("\"Brume\" is only in the cloud; it is skipped"), 1);
  media().changeTrack(-1);
  EXPECT_EQ(current_title(), "Bravo");
}

TEST_F(LibraryCloudSongs, AreReplacedByTheNextSongWhenChosen) {
  const media_tests::CapturedLog log;
  play("Brume");
  EXPECT_EQ(current_title(), "Charlie");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePlaying);
  EXPECT_EQ(log.count("is only in the cloud"), 1);
}

TEST_F(LibraryCloudSongs, AChosenSongThatWasRemovedIsLoggedAndSkipped) {
  play("Alpha");
  const auto bravo = objc::Ref<MPMediaItem>::retain(item("Bravo"));
  std::filesystem::remove(song_path("b.flac"));
  start();
  EXPECT_EQ(text(bravo->valueForProperty(MPMediaItemPropertyTitle)), "Bravo");
  EXPECT_EQ(text(bravo->valueForProperty(MPMediaItemPropertyAlbumTitle)), "One");
  const media_tests::CapturedLog log;
  const MPMediaQuery all = MPMediaQuery::alloc().init().autorelease();
  player().setQueueWithQuery(all);
  player().setNowPlayingItem(bravo.get());
  player().prepareToPlay();
  player().play();
  EXPECT_EQ(log.count("\"Bravo\" is not in the queue and cannot be played"), 1);
  EXPECT_EQ(current_title(), "Alpha");
}

TEST_F(LibraryCloudSongs, AQueuedFileThatVanishesIsLoggedAndSkipped) {
  play("Alpha");
  std::filesystem::remove(song_path("b.flac"));
  const media_tests::CapturedLog log;
  media().changeTrack(1);
  advance(0.1);
  EXPECT_EQ(current_title(), "Charlie");
  EXPECT_EQ(log.count("b.flac cannot be played"), 1);
}

}  // namespace
