#include "host/home_screen/progress_lines.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/support/caught_log.h"

namespace {

using namespace host;
using launcher::ProgressLines;
using media_player::MediaProgress;
using Stage = MediaProgress::Stage;

/// A first reading of `all` songs.
void read_songs(ProgressLines& lines, std::size_t all) {
  MediaProgress progress;
  progress.stage = Stage::kReadingFiles;
  lines(progress);
  progress.files.to_see = all;
  for (std::size_t seen = 0; seen <= all; seen += 50) {
    progress.files.seen = seen;
    lines(progress);
  }
  progress.stage = Stage::kReady;
  progress.songs = all;
  lines(progress);
}

TEST(ProgressLines, AreAFewInALog) {
  const test::CaughtLog log;
  ProgressLines lines(false);
  read_songs(lines, 20'000);
  EXPECT_EQ(log.text(),
            "info: reading music: 5000 of 20000\ninfo: reading music: 10000 of 20000\n"
            "info: reading music: 15000 of 20000\ninfo: reading music: 20000 of 20000\n"
            "info: 20000 songs (0 files skipped)\n");
}

TEST(ProgressLines, OfShortWorkAreItsResultOnce) {
  const test::CaughtLog log;
  ProgressLines lines(false);
  read_songs(lines, 200);
  read_songs(lines, 200);
  EXPECT_EQ(log.text(), "info: 200 songs (0 files skipped)\n");
}

TEST(ProgressLines, AreOneThatChangesInATerminal) {
  const test::CaughtLog log;
  ProgressLines lines(true);
  testing::internal::CaptureStderr();
  read_songs(lines, 20'000);
  const std::string written = testing::internal::GetCapturedStderr();
  EXPECT_THAT(written, testing::HasSubstr("reading music: 42 % of 20,000"));
  EXPECT_EQ(std::ranges::count(written, '\n'), 0);
  EXPECT_EQ(std::ranges::count(written, '\r'), 1 + 101 + 1);
  EXPECT_THAT(written, testing::EndsWith("\r\x1b[K"));
  EXPECT_EQ(log.text(), "info: 20000 songs (0 files skipped)\n");
}

TEST(ProgressLines, AreInThousands) {
  EXPECT_EQ(launcher::in_thousands(0), "0");
  EXPECT_EQ(launcher::in_thousands(999), "999");
  EXPECT_EQ(launcher::in_thousands(1000), "1,000");
  EXPECT_EQ(launcher::in_thousands(1234567), "1,234,567");
}

}  // namespace
