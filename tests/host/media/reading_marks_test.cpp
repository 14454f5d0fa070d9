#include "host/media/reading_marks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <thread>

#include "host/media/cloud_song.h"
#include "host/media/cover_file.h"
#include "host/media/mark_file.h"
#include "host/media/mpv_player.h"
#include "host/media/reading_trial.h"
#include "host/media/scan.h"
#include "tests/host/media/deadly_libraries.h"
#include "tests/support/full_disk.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

// A number that processes share with those that they start.
class SharedNumber {
 public:
  SharedNumber()
      : number_(new (::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0)) std::atomic<int>(0)) {}
  ~SharedNumber() { ::munmap(number_, sizeof *number_); }
  std::atomic<int>& operator*() { return *number_; }

 private:
  std::atomic<int>* number_;
};

void harmless(Reading, const std::string&) {}

class ReadingMarks : public testing::Test {
 protected:
  ReadingMarks() {
    fs::create_directories(folder_ / "music");
    set_tags("good.flac", "Good");
  }
  ~ReadingMarks() override {
    set_reading_hook({});
    keep_reading_marks({}, &harmless);
  }

  std::string at(const std::string& name) const { return folder_ / ("music/" + name); }
  std::string marks() const { return folder_ / "caches/marks"; }

  void set_tags(const std::string& name, const std::string& title) const {
    SongTags tags;
    tags.title = title;
    write_song(at(name), tags, {}, 0.2);
  }

  // From now on, reading what contains this text ends the process.
  static void make_deadly(std::string text) {
    set_reading_hook([text = std::move(text)](std::string_view what) {
      if (what.find(text) != what.npos) std::raise(SIGKILL);
    });
  }

  // Starts a phone, as far as marks are concerned.
  void start(ReadingTrial trial = &read_for_trial) const { keep_reading_marks(marks(), trial); }

  // Returns whether a started process that does `work` ends by it.
  template <class Work>
  bool dies(Work work, ReadingTrial trial = &read_for_trial) const {
    const pid_t child = ::fork();
    if (child == 0) {
      start(trial);
      work();
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
  }

  std::vector<std::string> scan() const {
    Index index{folder_ / "music.db"};
    const std::vector roots = {folder_ / "music"};
    const auto outcome = scan_folders(index, roots, [](const ScanProgress&) {});
    std::vector<std::string> titles;
    for (const Track& track : outcome.library->tracks())
      titles.emplace_back(track.title);
    return titles;
  }

  std::string reason_not_to_play(const std::string& path) const {
    struct Listener : PlayerListener {
      std::string reason;
      void player_did_reach_end() override {}
      void player_did_fail(const std::string&, const std::string& given) override {
        reason = given;
      }
    } listener;
    const auto player =
        std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::stepped, [] { return 0.0; }});
    player->set_listener(&listener);
    player->load(path);
    player->pump();
    return listener.reason;
  }

  // Ends the marks of this process and returns those that are left.
  std::vector<FileMark> left_marks() const {
    keep_reading_marks({}, &harmless);
    return MarkFile{marks()}.marks();
  }

  TemporaryFolder folder_;
};

TEST_F(ReadingMarks, ASongThatEndsTheProcessIsLeftOutWithOneLineUntilItChanges) {
  set_tags("killer.mp3", "Killer");
  make_deadly("killer.mp3");
  ASSERT_TRUE(dies([&] { scan(); }));
  for (int starts = 0; starts < 2; ++starts) {
    const CapturedLog log;
    start();
    EXPECT_THAT(scan(), ElementsAre("Good"));
    EXPECT_EQ(log.count("killer.mp3 is left out"), starts == 0);
    EXPECT_EQ(log.count("killer.mp3"), starts == 0);
  }
  set_reading_hook({});
  set_tags("killer.mp3", "Killed");
  start();
  EXPECT_THAT(scan(), ElementsAre("Good", "Killed"));
  start();
  EXPECT_THAT(left_marks(), IsEmpty());
}

TEST_F(ReadingMarks, ACoverThatEndsTheProcessIsLeftOutAndItsSongsStay) {
  write_bytes(at("cover.png"), as_text(png_picture(40, 20, 0x123456)));
  make_deadly("PNG");
  ASSERT_TRUE(dies([&] { scan(); }));
  start();
  EXPECT_THAT(scan(), ElementsAre("Good"));
  EXPECT_FALSE(decode_cover({1, at("cover.png"), CoverFile::Home::own_file}, 10));
}

TEST_F(ReadingMarks, ACoverInsideASongIsLeftOutAndTheSongStays) {
  write_song(at("own.flac"), {}, png_picture(40, 20, 0x123456), 0.2);
  const CoverFile cover{1, at("own.flac"), CoverFile::Home::in_song};
  EXPECT_THAT(scan(), ElementsAre("Good", "own"));
  make_deadly("PNG");
  ASSERT_TRUE(dies([&] { decode_cover(cover, 10); }));
  start();
  EXPECT_FALSE(decode_cover(cover, 10));
  EXPECT_THAT(scan(), ElementsAre("Good", "own"));
}

TEST_F(ReadingMarks, AnEntryStaysWhenTheCoverThatItNamesEndsTheProcess) {
  write_bytes(folder_ / "far.png", as_text(png_picture(40, 20, 0x123456)));
  write_bytes(at("far.cloud.toml"), "title = 'Far'\ncover = '../far.png'");
  make_deadly("PNG");
  ASSERT_TRUE(dies([&] { scan(); }));
  const CapturedLog log;
  start();
  EXPECT_THAT(scan(), ElementsAre("Far", "Good"));
  EXPECT_EQ(log.count("far.png is left out"), 1);
  EXPECT_EQ(log.count("far.cloud.toml is left out"), 0);
}

TEST_F(ReadingMarks, ASongWhoseSoundEndsTheProcessIsNotPlayedAgain) {
  EXPECT_THAT(scan(), ElementsAre("Good"));
  make_deadly("good.flac");
  ASSERT_TRUE(dies([&] { reason_not_to_play(at("good.flac")); }));
  const CapturedLog log;
  start();
  EXPECT_EQ(log.count("good.flac is left out"), 1);
  EXPECT_EQ(reason_not_to_play(at("good.flac")), "has ended the phone before");
  EXPECT_THAT(scan(), ElementsAre("Good"));
}

TEST_F(ReadingMarks, AProcessThatIsEndedFromOutsideLosesNothing) {
  SharedNumber deaths;
  set_reading_hook([&](std::string_view what) {
    if (what.ends_with("good.flac") && (*deaths)++ == 0) std::raise(SIGKILL);
  });
  ASSERT_TRUE(dies([&] { scan(); }));
  const CapturedLog log;
  start();
  EXPECT_THAT(scan(), ElementsAre("Good"));
  EXPECT_EQ(log.count("good.flac"), 0);
  EXPECT_THAT(left_marks(), IsEmpty());
}

TEST_F(ReadingMarks, AFileThatOnlyATrialSurvivesIsLeftOutAfterThreeProcesses) {
  make_deadly("good.flac");
  for (int i = 0; i < 3; ++i)
    ASSERT_TRUE(dies([&] { scan(); }, &harmless)) << i;
  start(&harmless);
  EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(ReadingMarks, EachThreadHasItsOwn) {
  SharedNumber readers;
  set_tags("killer 1.flac", "One");
  set_tags("killer 2.flac", "Two");
  set_reading_hook([&](std::string_view what) {
    if (what.find("killer") == what.npos) return;
    ++*readers;
    while (*readers < 2)
      std::this_thread::yield();
    std::raise(SIGKILL);
  });
  ASSERT_TRUE(dies([&] {
    const std::jthread other{[&] { read_song(at("killer 1.flac")); }};
    read_song(at("killer 2.flac"));
  }));
  const CapturedLog log;
  start();
  EXPECT_EQ(log.count("is left out"), 2);
  EXPECT_THAT(scan(), ElementsAre("Good"));
}

TEST_F(ReadingMarks, AGoodScanLeavesNone) {
  for (int i = 0; i < 100; ++i)
    set_tags(std::to_string(i) + ".flac", "Song");
  write_bytes(at("letter.mp3"), "no music");
  write_bytes(at("cover.png"), as_text(png_picture(40, 20, 0x123456)));
  start();
  EXPECT_EQ(scan().size(), 101u);
  EXPECT_EQ(reason_not_to_play(at("good.flac")), "");
  EXPECT_THAT(left_marks(), IsEmpty());
}

TEST_F(ReadingMarks, ThoseOfAnotherRunOfTheMachineMeanNothing) {
  make_deadly("good.flac");
  ASSERT_TRUE(dies([&] { scan(); }));
  std::string bytes = read_bytes(marks());
  bytes[0] = bytes[0] == 'x' ? 'y' : 'x';
  write_bytes(marks(), bytes);
  set_reading_hook({});
  const CapturedLog log;
  start([](Reading, const std::string&) { std::raise(SIGKILL); });
  EXPECT_EQ(log.count("left out"), 0);
  EXPECT_THAT(scan(), ElementsAre("Good"));
}

TEST_F(ReadingMarks, TheFileOfARunningProcessIsLeftAlone) {
  start();
  const ReadingMark mark{Reading::song, at("good.flac")};
  EXPECT_FALSE(dies([&] { EXPECT_THAT(scan(), ElementsAre("Good")); },
                    [](Reading, const std::string&) { std::raise(SIGKILL); }));
  EXPECT_TRUE(mark.may_read());
}

TEST_F(ReadingMarks, MusicPlaysWithoutAFileForThem) {
  fs::create_directories(marks());
  start();
  EXPECT_THAT(scan(), ElementsAre("Good"));
  fs::remove_all(folder_ / "caches");
  fs::create_symlink("marks", folder_ / "caches");
  start();
  EXPECT_THAT(scan(), ElementsAre("Good"));
  fs::remove(folder_ / "caches");
  {
    const FullDisk full{0};
    start();
    EXPECT_TRUE(read_song(at("good.flac")).tags);
  }
}

TEST_F(ReadingMarks, ADamagedFileIsNoMark) {
  fs::create_directories(folder_ / "caches");
  std::string noise;
  for (int i = 0; i < 200'000; ++i)
    noise += static_cast<char>(i * 7919 % 251);
  for (const std::string& bytes : {std::string("x"), noise, std::string(200'000, '\xff')}) {
    write_bytes(marks(), bytes);
    const CapturedLog log;
    start();
    EXPECT_THAT(scan(), ElementsAre("Good"));
    EXPECT_EQ(log.count("left out"), 0);
  }
}

}  // namespace
