#include "host/media/scanner.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>
#include <thread>

#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

bool becomes_readable(int descriptor, int milliseconds) {
  pollfd waiting{descriptor, POLLIN, 0};
  return ::poll(&waiting, 1, milliseconds) == 1;
}

std::vector<ScanUpdate> updates_until_finished(Scanner& scanner) {
  std::vector<ScanUpdate> updates;
  while (updates.empty() || updates.back().stage != ScanStage::finished) {
    if (!becomes_readable(scanner.descriptor(), 20'000)) break;
    while (auto update = scanner.take_update())
      updates.push_back(std::move(*update));
  }
  return updates;
}

}  // namespace

TEST(Scanner, WakesTheMainLoopWithTheRememberedAndThenTheFinishedLibrary) {
  const TemporaryFolder folder;
  write_tone(folder / "a.wav");
  write_bytes(folder / "b.mp3", "no music");
  Scanner scanner{folder / "state/music.db"};
  EXPECT_FALSE(becomes_readable(scanner.descriptor(), 0));
  scanner.request({folder.path()});
  const auto first = updates_until_finished(scanner);
  Scanner later{folder / "state/music.db"};
  later.request({folder.path()});
  const auto second = updates_until_finished(later);

  ASSERT_GE(first.size(), 2u);
  EXPECT_EQ(first.front().stage, ScanStage::remembered);
  EXPECT_EQ(first.front().library->tracks().size(), 0u);
  EXPECT_EQ(first.back().stage, ScanStage::finished);
  EXPECT_EQ(first.back().library->tracks().size(), 1u);
  EXPECT_EQ(first.back().progress.seen, 2u);
  EXPECT_EQ(first.back().progress.skipped, 1u);
  ASSERT_GE(second.size(), 2u);
  EXPECT_EQ(second.front().library->tracks().size(), 1u);
  EXPECT_EQ(second.back().progress.read, 0u);
  EXPECT_EQ(second.back().library, second.front().library);
  EXPECT_FALSE(becomes_readable(scanner.descriptor(), 0));
}

TEST(Scanner, AnswersEachRequestWithItsOwnFolders) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  write_tone(folder / "a.wav", 0.01);
  write_tone(other / "b.wav", 0.01);
  write_tone(other / "c.wav", 0.01);
  Scanner scanner{folder / "state/music.db"};
  EXPECT_EQ(scanner.request({folder.path()}), 1u);
  EXPECT_EQ(updates_until_finished(scanner).back().library->tracks().size(), 1u);
  EXPECT_EQ(scanner.request({folder.path(), other / "c.wav"}), 2u);
  const auto with_song = updates_until_finished(scanner).back();
  EXPECT_EQ(with_song.request, 2u);
  EXPECT_EQ(with_song.library->tracks().size(), 2u);
  EXPECT_EQ(with_song.progress.read, 1u);
  scanner.request({other.path()});
  EXPECT_EQ(updates_until_finished(scanner).back().library->tracks().size(), 2u);
}

TEST(Scanner, CountsTheSongsOfAFirstScanBeforeItReadsThem) {
  const TemporaryFolder folder;
  for (int i = 0; i < 120; ++i)
    write_tone(folder / (std::to_string(i) + ".wav"), 0.01);
  Scanner scanner{folder / "state/music.db"};
  scanner.request({folder.path()});
  const auto updates = updates_until_finished(scanner);
  EXPECT_EQ(updates.back().progress.to_see, 120u);
  EXPECT_EQ(updates.back().progress.seen, 120u);
}

TEST(Scanner, ReadsAnIndexThatAnotherHasChanged) {
  const TemporaryFolder folder;
  write_tone(folder / "a.wav", 0.01);
  Scanner scanner{folder / "state/music.db", Scanner::Work::watch};
  Scanner reader{folder / "state/music.db", Scanner::Work::load};
  scanner.request({folder.path()});
  updates_until_finished(scanner);
  reader.request({});
  EXPECT_EQ(updates_until_finished(reader).back().library->tracks().size(), 1u);
  write_tone(folder / "b.wav", 0.01);
  EXPECT_EQ(updates_until_finished(scanner).back().library->tracks().size(), 2u);
  reader.request({});
  EXPECT_EQ(updates_until_finished(reader).back().library->tracks().size(), 2u);
}

TEST(Scanner, OnlyTheLatestLibraryWaitsForAMainLoopThatIsBusy) {
  const TemporaryFolder folder;
  const std::string index = folder / "state/music.db";
  fs::create_directories(folder / "music");
  Scanner scanner{index};
  constexpr std::size_t scans = 4;
  for (std::size_t songs = 1; songs <= scans; ++songs) {
    write_tone(folder / ("music/" + std::to_string(songs) + ".wav"), 0.01);
    scanner.request({folder / "music"});
    // The index is written before the library is passed on.
    while (Index{index}.load().songs.size() != songs)
      std::this_thread::yield();
  }
  std::size_t libraries = 0;
  std::size_t songs = 0;
  while (songs != scans && becomes_readable(scanner.descriptor(), 20'000)) {
    while (const auto update = scanner.take_update()) {
      if (update->stage != ScanStage::finished) continue;
      ++libraries;
      songs = update->library->tracks().size();
    }
  }
  EXPECT_EQ(songs, scans);
  EXPECT_LE(libraries, 2u) << "the last one may come while the others are taken";
}

TEST(Scanner, StopsARunningScanWhenDestroyed) {
  const TemporaryFolder folder;
  for (int i = 0; i < 200; ++i)
    write_tone(folder / (std::to_string(i) + ".wav"), 0.01);
  Scanner scanner{folder / "state/music.db"};
  scanner.request({folder.path()});
  scanner.request({folder.path()});
  SUCCEED();
}
