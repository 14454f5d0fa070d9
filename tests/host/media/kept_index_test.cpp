#include <gmock/gmock.h>

#include <filesystem>

#include "host/media/index.h"
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

}  // namespace
