#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <set>
#include <string>

#include "host/basics/descriptor.h"
#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

// A second scan of folders whose library is already in hand.
class Rescanning : public testing::Test {
 protected:
  Rescanning() {
    fs::create_directories(folder_ / "music");
    write_song(at("a.flac"), titled("A"), {}, 0.1);
    write_song(at("b.flac"), titled("B"), {}, 0.1);
    write_bytes(at("broken.flac"), "no music");
    known_ = scan(nullptr).library;
  }

  static SongTags titled(const char* title) {
    SongTags tags;
    tags.title = title;
    tags.album = "Album";
    return tags;
  }

  std::string at(const char* name) const { return folder_ / ("music/" + std::string{name}); }

  ScanOutcome scan(std::shared_ptr<const Library> remembered) const {
    Index index{folder_ / "music.db"};
    const std::vector roots = {folder_ / "music"};
    return scan_folders(
        index, roots, [](const ScanProgress&) {}, {}, std::move(remembered));
  }

  TemporaryFolder folder_;
  std::shared_ptr<const Library> known_;
};

TEST_F(Rescanning, ReturnsTheLibraryInHandWhenNothingHasChanged) {
  const ScanOutcome outcome = scan(known_);
  EXPECT_EQ(outcome.library, known_);
  EXPECT_EQ(outcome.progress.seen, 3u);
  EXPECT_EQ(outcome.progress.read, 0u);
  EXPECT_EQ(outcome.progress.skipped, 1u);
}

TEST_F(Rescanning, RebuildsTheLibraryWhenNoneIsInHand) {
  const ScanOutcome outcome = scan(nullptr);
  ASSERT_EQ(outcome.library->tracks().size(), 2u);
  EXPECT_EQ(outcome.library->tracks()[0].title, "A");
  EXPECT_EQ(outcome.progress.read, 0u);
}

TEST_F(Rescanning, ASongThatIsGoneIsOutOfTheLibrary) {
  fs::remove(at("a.flac"));
  const ScanOutcome outcome = scan(known_);
  ASSERT_EQ(outcome.library->tracks().size(), 1u);
  EXPECT_EQ(outcome.library->tracks()[0].title, "B");
}

TEST_F(Rescanning, ASongThatChangedIsReadAndTheOthersKeepTheirTags) {
  write_song(at("a.flac"), titled("Another"), {}, 0.2);
  const ScanOutcome outcome = scan(known_);
  EXPECT_EQ(outcome.progress.read, 1u);
  ASSERT_EQ(outcome.library->tracks().size(), 2u);
  EXPECT_EQ(outcome.library->tracks()[0].title, "Another");
  EXPECT_EQ(outcome.library->tracks()[1].title, "B");
  EXPECT_EQ(outcome.library->tracks()[1].album, "Album");
}

/// The names of the files that have been opened in a folder, without those of folders.
class Opened {
 public:
  explicit Opened(const std::string& folder) : events_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    EXPECT_GE(inotify_add_watch(events_.get(), folder.c_str(), IN_OPEN), 0);
  }
  std::set<std::string> names() const {
    std::set<std::string> found;
    alignas(inotify_event) char bytes[4096];
    for (ssize_t size; (size = ::read(events_.get(), bytes, sizeof bytes)) > 0;) {
      for (ssize_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(bytes + at);
        if (event->len > 0) found.insert(event->name);
        at += static_cast<ssize_t>(sizeof *event + event->len);
      }
    }
    return found;
  }

 private:
  host::Descriptor events_;
};

TEST_F(Rescanning, OnlyWhatHasChangedIsOpened) {
  fs::last_write_time(at("b.flac"), fs::last_write_time(at("b.flac")) + std::chrono::hours(1));
  const Opened opened(folder_ / "music");
  EXPECT_EQ(scan(known_).progress.read, 1u);
  EXPECT_THAT(opened.names(), testing::ElementsAre("b.flac"));
}

TEST_F(Rescanning, ANewPictureReachesTheSongsWithoutOpeningThem) {
  write_bytes(at("cover.png"), as_text(png_picture(4, 4, 0x00ff00)));
  const ScanOutcome outcome = scan(known_);
  EXPECT_EQ(outcome.progress.read, 0u);
  ASSERT_EQ(outcome.library->tracks().size(), 2u);
  for (const Track& track : outcome.library->tracks())
    EXPECT_EQ(track.picture_path, at("cover.png"));
  EXPECT_EQ(scan(outcome.library).library, outcome.library);
}

TEST_F(Rescanning, ALibraryFromAnotherIndexIsNotTrusted) {
  const ScanOutcome outcome = scan(Library::build({}));
  EXPECT_EQ(outcome.library->tracks().size(), 2u);
}

}  // namespace
