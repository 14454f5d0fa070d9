#include "host/media/scanner.h"

#include <gtest/gtest.h>
#include <poll.h>

#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

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

  scanner.start({folder.path()});
  const auto first = updates_until_finished(scanner);
  scanner.start({folder.path()});
  const auto second = updates_until_finished(scanner);

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
  EXPECT_FALSE(becomes_readable(scanner.descriptor(), 0));
}

TEST(Scanner, StopsARunningScanWhenDestroyed) {
  const TemporaryFolder folder;
  for (int i = 0; i < 200; ++i)
    write_tone(folder / (std::to_string(i) + ".wav"), 0.01);
  Scanner scanner{folder / "state/music.db"};
  scanner.start({folder.path()});
  scanner.start({folder.path()});
  SUCCEED();
}
