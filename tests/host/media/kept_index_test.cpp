#include <gmock/gmock.h>

#include <filesystem>

#include "host/media/index.h"
#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/no_descriptors.h"
#include "tests/support/ordinary_user.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

class KeptIndex : public testing::Test {
 protected:
  std::string path() const { return folder_ / "music.db"; }
  std::string beside(const char* suffix) const { return path() + suffix; }

  void keep_a_song() const {
    SongRecord song;
    song.id = 1;
    song.path = "/a.flac";
    IndexChanges changes;
    changes.songs.push_back(song);
    ASSERT_TRUE(Index(path()).apply(changes));
  }

  TemporaryFolder folder_;
};

TEST_F(KeptIndex, EveryDamagedOneIsKept) {
  for (const char* bytes : {"first damage", "second damage"}) {
    write_bytes(path(), bytes);
    EXPECT_EQ(Index(path()).store(), IndexStore::on_disk);
  }
  EXPECT_EQ(read_bytes(beside(".damaged")), "first damage");
  EXPECT_EQ(read_bytes(beside(".damaged-2")), "second damage");
}

TEST_F(KeptIndex, AnUnreadableOneStaysAsItIs) {
  keep_a_song();
  fs::permissions(path(), fs::perms::none);
  const CapturedLog log;
  {
    const OrdinaryUser user;
    EXPECT_EQ(Index(path()).store(), IndexStore::in_memory);
  }
  EXPECT_EQ(log.count("cannot be kept"), 1);
  EXPECT_FALSE(fs::exists(beside(".damaged")));
  EXPECT_EQ(Index(path()).load().songs.size(), 1u);
}

TEST_F(KeptIndex, ALackOfDescriptorsIsNoDamage) {
  keep_a_song();
  {
    const NoDescriptors none;
    Index index(path());
    EXPECT_EQ(index.store(), IndexStore::in_memory);
    EXPECT_TRUE(index.apply({{}, {}, {{"/b", {}}}}));
  }
  EXPECT_FALSE(fs::exists(beside(".damaged")));
  EXPECT_EQ(Index(path()).load().songs.size(), 1u);
}

TEST_F(KeptIndex, ASongShowsNothingOfTheOneBefore) {
  SongRecord full;
  full.id = 1;
  full.path = "/full.flac";
  full.folder_picture = {"/cover.jpg", 5, {6, 7, true}};
  full.tags = {"title", "artist", "of the album", "album", "genre", "composer",     1,
               2,       3.5,      true,           true,    9,       {10, 11, true}, "/own.jpg"};
  SongRecord bare;
  bare.id = 2;
  bare.path = "/bare.flac";
  Index index(path());
  ASSERT_TRUE(index.apply({{}, {full, bare}, {}}));
  std::vector<SongRecord> shown;
  EXPECT_TRUE(index.show_songs([&shown](const SongRecord& song) { shown.push_back(song); }));
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].tags, full.tags);
  EXPECT_EQ(shown[0].folder_picture, full.folder_picture);
  EXPECT_EQ(shown[1].path, bare.path);
  EXPECT_EQ(shown[1].tags, bare.tags);
  EXPECT_EQ(shown[1].folder_picture, bare.folder_picture);
  EXPECT_EQ(index.count_songs(), 2u);
}

// Half of a library would make the user believe that the other half is gone.
TEST_F(KeptIndex, OneThatIsDamagedBehindItsFirstSongsKnowsNone) {
  {
    IndexChanges changes;
    for (std::uint64_t id = 1; id <= 200; ++id) {
      SongRecord& song = changes.songs.emplace_back();
      song.id = id;
      song.path = "/" + std::to_string(id);
      song.tags.title = std::string(900, 'a');
    }
    ASSERT_TRUE(Index(path()).apply(changes));
  }
  std::string bytes = read_bytes(path());
  ASSERT_GT(bytes.size(), 100'000u);
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size()) / 2, bytes.end(), '\x55');
  write_bytes(path(), bytes);
  const CapturedLog log;
  Index index(path());
  int shown = 0;
  EXPECT_FALSE(index.show_songs([&shown](const SongRecord&) { ++shown; }));
  EXPECT_GT(shown, 0);
  EXPECT_EQ(log.count("was damaged"), 1);
  EXPECT_EQ(index.count_songs(), 0u);
  write_bytes(path(), bytes);
  Index again(path());
  EXPECT_TRUE(remembered_library(again)->tracks().empty());
}

}  // namespace
