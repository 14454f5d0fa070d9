#include "host/media/folder_watch.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "host/basics/event_signal.h"
#include "host/media/scan.h"
#include "host/media/scan_pace.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/ordinary_user.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

// A folder of music that is watched by each scan.
class WatchingFolders : public testing::Test {
 protected:
  WatchingFolders() {
    fs::create_directories(at("album"));
    fs::create_directories(folder_ / "elsewhere");
    write_tone(at("album/a.wav"), 0.01);
    roots_ = {music()};
    kept_.watch = &watch_;
    scan();
  }

  std::string music() const { return folder_ / "music"; }
  std::string at(const std::string& name) const { return music() + "/" + name; }

  std::size_t scan() {
    Index index{folder_ / "state/music.db"};
    const auto outcome = scan_folders(
        index, roots_, [](const ScanProgress&) {}, {}, nullptr, &kept_);
    return outcome.library->tracks().size();
  }

  // The system reports at once, within the call that makes the change.
  bool has_changed() { return watch_.take_changes(); }

  bool is_quiet() {
    pollfd waiting{watch_.descriptor(), POLLIN, 0};
    return ::poll(&waiting, 1, 0) == 0;
  }

  TemporaryFolder folder_;
  std::vector<std::string> roots_;
  FolderWatch watch_;
  KeptByScans kept_;
};

}  // namespace

TEST_F(WatchingFolders, AScanIsNoChange) {
  EXPECT_FALSE(has_changed());
  EXPECT_EQ(scan(), 1u);
  EXPECT_FALSE(has_changed());
  EXPECT_TRUE(is_quiet());
}

TEST_F(WatchingFolders, NoticesSongsThatComeChangeMoveAndGo) {
  write_tone(at("album/b.wav"), 0.01);
  EXPECT_TRUE(has_changed());
  std::ofstream(at("album/b.wav"), std::ios::app) << "more";
  EXPECT_TRUE(has_changed());
  fs::rename(at("album/b.wav"), at("c.wav"));
  EXPECT_TRUE(has_changed());
  fs::remove(at("c.wav"));
  EXPECT_TRUE(has_changed());
  write_bytes(at("album/cover.png"), "a picture");
  EXPECT_TRUE(has_changed());
  write_bytes(at("album/d.cloud.toml"), "title = \"D\"");
  EXPECT_TRUE(has_changed());
}

TEST_F(WatchingFolders, IgnoresFilesThatAreNoPartOfALibrary) {
  write_bytes(at("album/letter.txt"), "hello");
  write_bytes(at("album/.hidden.wav"), "hello");
  write_bytes(at("album/song.wav.part"), "hello");
  fs::remove(at("album/letter.txt"));
  fs::create_directories(at(".trash"));
  EXPECT_FALSE(has_changed());
}

TEST_F(WatchingFolders, ASongThatIsBeingWrittenIsAChangeWhenItIsComplete) {
  {
    std::ofstream song(at("album/b.wav"), std::ios::binary);
    EXPECT_FALSE(has_changed());
    song << "half of it" << std::flush;
    EXPECT_FALSE(has_changed());
  }
  EXPECT_TRUE(has_changed());
}

TEST_F(WatchingFolders, FoldersThatComeAreWatchedFromTheNextScan) {
  fs::create_directories(at("new/deep"));
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 1u);
  write_tone(at("new/deep/b.wav"), 0.01);
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 2u);
}

TEST_F(WatchingFolders, FoldersThatAreMovedAwayAreNoLongerWatched) {
  const auto before = watch_.count();
  fs::rename(at("album"), folder_ / "elsewhere/album");
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 0u);
  EXPECT_EQ(watch_.count(), before - 1);
  write_tone(folder_ / "elsewhere/album/b.wav", 0.01);
  EXPECT_FALSE(has_changed());
}

TEST_F(WatchingFolders, TheFolderOfAllMusicMayVanishAndReturn) {
  fs::rename(music(), folder_ / "elsewhere/music");
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 0u);
  EXPECT_FALSE(has_changed());
  fs::rename(folder_ / "elsewhere/music", music());
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 1u);
}

TEST_F(WatchingFolders, AFolderThatIsMissingIsAwaitedWithTheFoldersAboveIt) {
  roots_ = {folder_ / "one/two/three"};
  EXPECT_EQ(scan(), 0u);
  fs::create_directories(folder_ / "other");
  EXPECT_FALSE(has_changed());
  fs::create_directories(roots_[0]);
  EXPECT_TRUE(has_changed());
}

TEST_F(WatchingFolders, FollowsLinksToFolders) {
  fs::create_directory_symlink(folder_ / "elsewhere", at("link"));
  EXPECT_TRUE(has_changed());
  scan();
  write_tone(folder_ / "elsewhere/b.wav", 0.01);
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 2u);
  fs::remove(at("link"));
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 1u);
}

TEST_F(WatchingFolders, AFolderThatMayBeReadAgainIsAChange) {
  const OrdinaryUser user;
  fs::permissions(at("album"), fs::perms::none);
  EXPECT_TRUE(has_changed());
  const CapturedLog log;
  EXPECT_EQ(scan(), 0u);
  EXPECT_EQ(scan(), 0u);
  EXPECT_EQ(log.count("album cannot be read"), 1);
  EXPECT_TRUE(watch_.sees_everything());
  fs::permissions(at("album"), fs::perms::owner_all);
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 1u);
}

TEST_F(WatchingFolders, OfASongOnItsOwnOnlyTheSongIsWatched) {
  const std::string song = folder_ / "elsewhere/b.wav";
  write_tone(song, 0.01);
  write_tone(folder_ / "elsewhere/c.wav", 0.01);
  roots_.push_back(song);
  EXPECT_EQ(scan(), 2u);
  write_tone(folder_ / "elsewhere/d.wav", 0.01);
  EXPECT_FALSE(has_changed());
  fs::remove(song);
  EXPECT_TRUE(has_changed());
  EXPECT_EQ(scan(), 1u);
}

TEST_F(WatchingFolders, MoreChangesThanAreReportedCountAsOneAndAreSaidOnce) {
  std::size_t queue = 0;
  std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> queue;
  ASSERT_GT(queue, 0u);
  // Names that matter to no one: only the overflow itself is a change. Equal reports in a row are
  // one.
  const std::string letters[] = {at("album/a.txt"), at("album/b.txt")};
  for (const std::string& letter : letters)
    write_bytes(letter, "hello");
  EXPECT_FALSE(has_changed());
  const CapturedLog log;
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = 0; i <= queue; ++i)
      ::close(::open(letters[i % 2].c_str(), O_WRONLY | O_CLOEXEC));
    bool has_seen = false;
    while (!is_quiet())
      has_seen |= has_changed();
    EXPECT_TRUE(has_seen);
  }
  EXPECT_EQ(log.count("more changes"), 1);
}

TEST_F(WatchingFolders, AFloodOfChangesIsReadInAFewCallsAndFoundByOneScan) {
  constexpr int changes = 100'000;
  const CapturedLog log;
  const auto folders = watch_.count();
  for (int i = 0; i < changes; ++i) {
    const bool is_there = i % 2 == 0;
    ASSERT_EQ(::rename(at(is_there ? "album/a.wav" : "album/b.wav").c_str(),
                       at(is_there ? "album/b.wav" : "album/a.wav").c_str()),
              0);
  }
  int calls = 0;
  for (; !is_quiet() && calls < 100; ++calls)
    EXPECT_TRUE(has_changed());
  // The system keeps a part of them, and a call reads a megabyte.
  EXPECT_LE(calls, 2);
  EXPECT_EQ(log.count("more changes"), 1);
  EXPECT_EQ(scan(), 1u);
  EXPECT_EQ(watch_.count(), folders);
  EXPECT_TRUE(is_quiet());
}

TEST_F(WatchingFolders, AScanIsDueNowAndThenWhereNotAllFoldersCanBeWatched) {
  FolderWatch few{1};
  kept_.watch = &few;
  EXPECT_EQ(scan(), 1u);
  write_tone(at("album/b.wav"), 0.01);
  EXPECT_FALSE(few.take_changes());
  const host::EventSignal never;
  ScanPace{never.descriptor(), &few, ScanPace::Milliseconds{1}}.wait({});
  EXPECT_EQ(scan(), 2u);
}

TEST_F(WatchingFolders, AScanIsDueWhenTheChangesHaveSettledOrWaitingIsToEnd) {
  host::EventSignal wake;
  ScanPace pace{wake.descriptor(), &watch_};
  write_tone(at("album/b.wav"), 0.01);
  pace.wait({});
  EXPECT_TRUE(is_quiet());
  wake.raise();
  pace.wait({});
  EXPECT_TRUE(is_quiet());
}

TEST_F(WatchingFolders, FoldersBeyondTheLimitAreSaidOnce) {
  FolderWatch few{2};
  kept_.watch = &few;
  for (int i = 0; i < 4; ++i)
    fs::create_directories(at("folder" + std::to_string(i)));
  const CapturedLog log;
  EXPECT_EQ(scan(), 1u);
  EXPECT_EQ(scan(), 1u);
  EXPECT_FALSE(few.sees_everything());
  EXPECT_EQ(few.count(), 2u);
  EXPECT_EQ(log.count("only 2 folders of music can be watched"), 1);
  for (int i = 0; i < 4; ++i)
    fs::remove(at("folder" + std::to_string(i)));
  EXPECT_EQ(scan(), 1u);
  EXPECT_TRUE(few.sees_everything());
}
