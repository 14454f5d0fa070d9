#include <sys/stat.h>

#include <set>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using namespace media_tests;
using host::media::SongTags;
using testing::HasSubstr;

constexpr std::uint32_t kHugeSide = 20000;

SongTags titled(std::string title) {
  SongTags tags;
  tags.title = std::move(title);
  tags.artist = "Somebody";
  tags.album = "Something";
  return tags;
}

/// Replaces one text in a file with another of the same length.
void patch(const std::string& path, std::string_view old, std::string_view text) {
  std::string bytes = read_bytes(path);
  const auto place = bytes.find(old);
  ASSERT_NE(place, bytes.npos) << path;
  ASSERT_EQ(old.size(), text.size());
  bytes.replace(place, old.size(), text);
  write_bytes(path, bytes);
}

/// A folder of music as found on an old disk. Each bad file is one line in the log.
class BadMusic : public PhoneTest {
 protected:
  BadMusic() {
    fs::remove(music() / "tone.flac");
    make_what_is_no_song();
    make_what_breaks_off();
    make_absurd_tags();
    make_absurd_pictures();
    make_odd_folders();
  }
  ~BadMusic() override { chmod(at("locked").c_str(), 0700); }

  std::string at(const std::string& name) const { return music() / name; }

  void make_what_is_no_song() {
    write_bytes(at("letter.mp3"), "Dear reader, this is a letter.\n");
    write_bytes(at("nothing.flac"), "");
    write_bytes(at("nothing.mp3"), "");
    fs::create_directory(at("folder.mp3"));
  }

  void make_what_breaks_off() {
    for (const char* name : {"cut.flac", "cut.mp3", "cut.ogg"}) {
      write_song(at(name), titled("Breaks Off"));
      truncate_file(at(name), fs::file_size(at(name)) / 3);
    }
    fs::copy_file(MEDIA_TEST_DATA "/tiny.m4a", at("cut.m4a"));
    truncate_file(at("cut.m4a"), 600);
  }

  void make_absurd_tags() {
    write_song(at("endless.flac"), titled(std::string(1 << 20, 'x')));
    write_song(at("endless.mp3"), titled(std::string(1 << 20, 'y')));
    write_song(at("bytes.flac"), titled("MARKED"));
    patch(at("bytes.flac"), "MARKED", "\xff\xfe\xc0\x80\xed\xa0");
    SongTags tags = titled("Numbers");
    tags.track_number = 7777;
    write_song(at("negative.flac"), tags);
    patch(at("negative.flac"), "TRACKNUMBER=7777", "TRACKNUMBER=-777");
    write_song(at("huge.flac"), tags);
    patch(at("huge.flac"), "TRACKNUMBER=7777", "TRACKNUMBER=9e99");
  }

  void make_absurd_pictures() {
    const auto picture = png_promise(kHugeSide, kHugeSide);
    fs::create_directory(at("with-picture"));
    write_bytes(at("with-picture/folder.png"), as_text(picture));
    write_song(at("with-picture/plain.flac"), titled("Huge Picture Beside It"));
    write_song(at("embedded.flac"), titled("Huge Picture Inside"), picture);
  }

  void make_odd_folders() {
    fs::create_directory(at("circle"));
    fs::create_directory_symlink("../circle", at("circle/again"));
    fs::create_symlink("nowhere.mp3", at("dangling.mp3"));
    fs::create_directory(at("locked"));
    write_song(at("locked/unseen.flac"), titled("Unseen"));
    chmod(at("locked").c_str(), 0);
  }
};

// Seven songs with a title; a truncated one may count, too, if enough of it is left.
constexpr int kFewestSongs = 7;

int number_in(const std::string& answer) {
  return std::atoi(answer.c_str());
}

TEST_F(BadMusic, IsSkippedOrShownAndCountedAndLoggedOnceEach) {
  {
    RunningPhone phone(headless({"--console"}), Hardship::kOrdinaryUser);
    const int songs =
        number_in(phone.ask("print [[[[[MPMediaQuery alloc] init] autorelease] items] count]"));
    EXPECT_GE(songs, kFewestSongs);
    for (const char* name : {"/letter.mp3", "/nothing.flac", "/nothing.mp3", "/locked"})
      EXPECT_EQ(phone.count_of_errors_with(name), 1) << name;
    for (const char* name : {"/cut.flac", "/cut.mp3", "/cut.ogg", "/cut.m4a"})
      EXPECT_LE(phone.count_of_errors_with(name), 1) << name;
    EXPECT_EQ(phone.count_of_errors_with(std::to_string(songs) + " songs ("), 1);
    EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
  }
  RunningPhone again(headless({"--console"}), Hardship::kOrdinaryUser);
  EXPECT_EQ(again.ask("print isShow"), "NO");
  EXPECT_EQ(again.count_of_errors_with("letter.mp3"), 0) << "nothing has changed since";
  EXPECT_EQ(again.count_of_errors_with("files skipped"), 1);
}

TEST_F(BadMusic, EverySongPlaysOrIsSkippedInTheOpenPanel) {
  switch_drag_on();
  RunningPhone phone(headless({"--console", "--screenshots", folder() / "screenshots"}),
                     Hardship::kOrdinaryUser);
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_EQ(phone.ask("drag on musicIcon 187 500 0.3"), "ok");
  ASSERT_EQ(phone.ask("advance 2"), "ok");
  ASSERT_EQ(phone.ask("print isShow"), "YES");

  const std::string query = "[[[MPMediaQuery alloc] init] autorelease]";
  const int songs = number_in(phone.ask("print [[" + query + " items] count]"));
  ASSERT_GE(songs, kFewestSongs);
  std::set<std::string> titles;
  for (int song = 0; song < songs; ++song) {
    phone.ask("print [musicPlayer setQueueWithQuery:" + query + "]");
    phone.ask("print [musicPlayer setNowPlayingItem:[[" + query +
              " items] objectAtIndex:" + std::to_string(song) + "]]");
    phone.ask("print [musicPlayer play]");
    // The panel refreshes once a second, and must do so before the one-second song is over.
    phone.ask("advance 0.6");
    phone.ask("print [[SpringBoard sharedApplication] infoMusic]");
    titles.insert(phone.ask("print [title text]"));
    ASSERT_EQ(phone.ask("screenshot song.png"), "ok");
  }
  EXPECT_THAT(titles, testing::Contains(testing::StartsWith("\"xxxxxxxxxx")));
  EXPECT_THAT(titles, testing::Contains("\"Huge Picture Inside\""));
  EXPECT_THAT(titles, testing::Contains("\"Huge Picture Beside It\""));
  EXPECT_THAT(titles, testing::Contains("\"Numbers\""));
  EXPECT_EQ(phone.count_of_errors_with("/embedded.flac cannot be shown"), 1);
  EXPECT_EQ(phone.count_of_errors_with("/folder.png cannot be shown"), 1);
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

class DeadlyMusic : public PhoneTest {
 protected:
  DeadlyMusic() {
    write_song(music() / "killer.mp3", titled("Killer"));
    setenv("LD_PRELOAD", TEST_DEADLY_TAGS, 1);
    // The sanitizers want to be loaded first.
    const char* options = getenv("ASAN_OPTIONS");
    const std::string before = options ? options : "";
    setenv("ASAN_OPTIONS", (before + ":verify_asan_link_order=0").c_str(), 1);
  }
  ~DeadlyMusic() override { unsetenv("LD_PRELOAD"); }

  static constexpr const char* kCountSongs =
      "print [[[[[MPMediaQuery alloc] init] autorelease] items] count]";
};

TEST_F(DeadlyMusic, IsLeftOutAfterOneCrashAndThePhoneStarts) {
  {
    RunningPhone phone(headless({"--console"}));
    ASSERT_NE(phone.wait_for_home_screen_after(0), 0);
    ASSERT_TRUE(phone.waits_for_error("ended by signal"));
    ASSERT_TRUE(phone.waits_for_error("1 songs (1 files skipped)"));
    EXPECT_EQ(phone.ask(kCountSongs), "1");
    EXPECT_EQ(phone.count_of_errors_with("killer.mp3"), 1);
    EXPECT_EQ(phone.count_of_errors_with("killer.mp3 is left out"), 1);
    EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 1);
    EXPECT_EQ(phone.ask("quit"), "ok");
    ASSERT_EQ(phone.wait_for_end(), 0);
  }
  RunningPhone again(headless({"--console"}));
  EXPECT_EQ(again.ask(kCountSongs), "1");
  EXPECT_EQ(again.count_of_errors_with("killer.mp3"), 0);
  EXPECT_EQ(again.count_of_errors_with("ended by signal"), 0);
}

/// Names and links as another system or a careless copy leaves them.
class OddNames : public PhoneTest {
 protected:
  static constexpr const char* kNotText = "caf\xe9 \xff\xfe";

  OddNames() {
    fs::remove_all(music());
    fs::create_directories(odd() / kNotText);
    write_tone(odd() / kNotText / "\xe9t\xe9.flac");
    write_tone(odd() / "two\n[SpringBoard] error: lines.flac");
    write_bytes(odd() / "no\x1b[2J\nsong.mp3", "no music");
    for (const char* name : {"round.mp3", "round.cloud.toml", "round"})
      fs::create_symlink(name, odd() / name);
    for (const char* name : {"locked", "closed"}) {
      fs::create_directory(odd() / name);
      write_tone(odd() / name / "unseen.flac");
      write_tone(odd() / name / "unseen too.flac");
    }
    chmod((odd() / "locked").c_str(), 0);
    chmod((odd() / "closed").c_str(), S_IRUSR);
  }
  ~OddNames() override {
    chmod((odd() / "locked").c_str(), S_IRWXU);
    chmod((odd() / "closed").c_str(), S_IRWXU);
  }

  fs::path odd() const { return folder() / "m\xff sic"; }
  Arguments arguments() const {
    return {"--headless", "--root", root(), "--music", odd(), "--console"};
  }
};

TEST_F(OddNames, ArePlayedOrOneLineEach) {
  RunningPhone phone(arguments(), Hardship::kOrdinaryUser);
  const std::string query = "[[[MPMediaQuery alloc] init] autorelease]";
  ASSERT_EQ(phone.ask("print [[" + query + " items] count]"), "2") << phone.errors();
  phone.ask("print [musicPlayer setQueueWithQuery:" + query + "]");
  for (int song = 0; song < 2; ++song) {
    const std::string item = "[[" + query + " items] objectAtIndex:" + std::to_string(song) + "]";
    phone.ask("print [musicPlayer setNowPlayingItem:" + item + "]");
    phone.ask("print [musicPlayer play]");
    phone.ask("advance 0.5");
    EXPECT_EQ(phone.ask("expect [musicPlayer currentPlaybackTime] > 0.4"), "ok");
  }
  for (const char* line :
       {"/no\\x1b[2J\\nsong.mp3 contains no audio; it is skipped",
        "/round.mp3 cannot be reached: Too many levels of symbolic links; it is skipped",
        "/round.cloud.toml cannot be reached",
        "/m\\xff sic/locked cannot be read: Permission denied",
        "/m\\xff sic/closed cannot be read: Permission denied"}) {
    EXPECT_EQ(phone.count_of_errors_with(line), 1) << line;
  }
  for (const std::string& line : phone.error_lines())
    EXPECT_THAT(line, testing::MatchesRegex("\\[(sonavue|SpringBoard)\\] (info|warning): .*"));
  EXPECT_EQ(phone.count_of_errors_with("unseen"), 0);
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

using NoMusic = PhoneTest;

TEST_F(NoMusic, StillOpensThePanel) {
  switch_drag_on();
  fs::remove(music() / "tone.flac");
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  EXPECT_EQ(phone.count_of_errors_with("0 songs"), 1);
  ASSERT_EQ(phone.ask("drag on musicIcon 187 500 0.3"), "ok");
  ASSERT_EQ(phone.ask("advance 2"), "ok");
  EXPECT_EQ(phone.ask("print isShow"), "YES");
  for (const char* button : {"tap on play", "tap on next", "tap on back"}) {
    EXPECT_EQ(phone.ask(button), "ok");
    EXPECT_EQ(phone.ask("advance 2.5"), "ok");
  }
  EXPECT_EQ(phone.ask("button home"), "ok");
  EXPECT_EQ(phone.ask("advance 2"), "ok");
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

TEST_F(NoMusic, IsScannedBesideARunningScreen) {
  RunningPhone phone(headless());
  EXPECT_TRUE(phone.waits_for_error("1 songs (0 files skipped)"));
}

}  // namespace
