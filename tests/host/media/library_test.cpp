#include "host/media/library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace host::media;
using testing::ElementsAre;

namespace {

SongRecord song(std::uint64_t id, std::string title, std::string artist = "A",
                std::string album = "B", int disc = 0, int number = 0) {
  SongRecord record;
  record.id = id;
  record.path = "/music/" + std::to_string(id) + ".flac";
  record.tags.title = std::move(title);
  record.tags.artist = std::move(artist);
  record.tags.album = std::move(album);
  record.tags.disc_number = disc;
  record.tags.track_number = number;
  return record;
}

std::vector<std::uint64_t> identifiers(std::span<const Track> tracks) {
  std::vector<std::uint64_t> ids;
  for (const Track& track : tracks)
    ids.push_back(track.id);
  return ids;
}

}  // namespace

TEST(Library, OrdersByTitleWithoutCaseThenByArtistAlbumAndPlace) {
  const std::vector records = {
      song(1, "beta"),      song(2, "Alpha", "Z"),           song(3, "alpha", "Y"),
      song(4, "The Alpha"), song(5, "Beta", "A", "B", 1, 2), song(6, "Beta", "A", "B", 1, 1)};
  EXPECT_THAT(identifiers(Library::build(records)->tracks()), ElementsAre(3, 2, 1, 6, 5, 4));
}

TEST(Library, FindsASongByItsIdentifierOnly) {
  const std::vector records = {song(7, "x"), song(3, "y"), song(9, "z")};
  const auto library = Library::build(records);
  ASSERT_NE(library->find(3), nullptr);
  EXPECT_EQ(library->find(3)->title, "y");
  EXPECT_EQ(library->find(4), nullptr);
  EXPECT_EQ(Library::build({})->find(3), nullptr);
}

TEST(Library, AnAlbumHoldsItsSongsByDiscAndNumber) {
  const std::vector records = {song(1, "a", "X", "Blue", 2, 1), song(2, "b", "X", "BLUE", 1, 2),
                               song(3, "c", "X", "Blue", 1, 1), song(4, "d", "Y", "Blue", 1, 1)};
  const auto library = Library::build(records);
  std::vector<std::uint64_t> ids;
  for (const Track* track : library->album(library->find(1)->album_id))
    ids.push_back(track->id);
  EXPECT_THAT(ids, ElementsAre(3, 2, 1));
  EXPECT_TRUE(library->album(12345).empty());
}

TEST(Library, AlbumArtistOrCompilationKeepsGuestsOnOneAlbum) {
  SongTags one = song(1, "a", "X", "Blue").tags;
  SongTags two = song(2, "b", "X and Guest", "Blue").tags;
  EXPECT_NE(album_identifier(one), album_identifier(two));
  one.album_artist = two.album_artist = "X";
  EXPECT_EQ(album_identifier(one), album_identifier(two));
  one.album_artist = two.album_artist = "";
  one.is_compilation = two.is_compilation = true;
  EXPECT_EQ(album_identifier(one), album_identifier(two));
}

TEST(Library, AnEmbeddedPictureComesBeforeTheOneInTheFolder) {
  SongRecord with_both = song(1, "a");
  with_both.folder_picture = {"/music/cover.jpg", 44, {30, 30, true}};
  with_both.tags.own_artwork = 33;
  with_both.tags.own_picture = {20, 10, true};
  SongRecord with_folder = song(2, "b");
  with_folder.folder_picture = {"/music/cover.jpg", 44, {30, 30, true}};
  const std::vector records = {with_both, with_folder, song(3, "c")};
  const auto library = Library::build(records);
  EXPECT_EQ(library->find(1)->artwork_key, 33u);
  EXPECT_EQ(library->find(1)->picture_path, "");
  EXPECT_EQ(library->find(2)->artwork_key, 44u);
  EXPECT_EQ(library->find(2)->picture_path, "/music/cover.jpg");
  EXPECT_FALSE(library->find(3)->has_artwork());
}

TEST(Library, TextsOutliveTheRecordsAndEqualOnesAreKeptOnce) {
  std::shared_ptr<const Library> library;
  {
    const std::vector records = {song(1, "a", "Somebody", "An Album"),
                                 song(2, "b", "Somebody", std::string(100'000, 'q'))};
    library = Library::build(records);
  }
  EXPECT_EQ(library->find(1)->artist, "Somebody");
  EXPECT_EQ(library->find(1)->artist.data(), library->find(2)->artist.data());
  EXPECT_EQ(library->find(2)->album.size(), 100'000u);
}

// Objects for titles are shared by the address of the text.
TEST(Library, EqualTitlesAreOneTextWhateverTheirCase) {
  const std::vector records = {song(3, "Intro", "C"), song(1, "INTRO", "B"), song(2, "Intro", "D"),
                               song(4, "Outro", "A")};
  const auto library = Library::build(records);
  EXPECT_EQ(library->find(3)->title.data(), library->find(2)->title.data());
  EXPECT_EQ(library->find(1)->title, "INTRO");
  EXPECT_EQ(library->find(4)->title, "Outro");
}

TEST(Library, EveryTextEndsWithAZeroByte) {
  const auto library = Library::build(std::vector{song(1, "a", "", "b")});
  const Track& track = *library->find(1);
  for (const std::string_view text : {track.title, track.artist, track.album, track.album_artist,
                                      track.genre, track.composer, track.path})
    EXPECT_EQ(std::string_view{text.data()}, text);
}
