#include <signal.h>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

/// A phone with a window on a desktop that exists only in memory, on the machine's clock.
class Files : public PhoneTest {
 protected:
  Files() { setenv("SDL_VIDEODRIVER", "dummy", 1); }
  ~Files() override { unsetenv("SDL_VIDEODRIVER"); }

  Arguments in_a_window(const Arguments& more = {}) const {
    Arguments made = {"--root", root(), "--music", music()};
    made.insert(made.end(), more.begin(), more.end());
    return made;
  }

  static constexpr const char* kSongs = "print [[[[MPMediaQuery alloc] init] items] count]";
  static constexpr const char* kRows =
      "print [[[UIApplication sharedApplication] songsTable] numberOfRowsInSection:0]";
  static constexpr const char* kTitle =
      "print [[[MPMusicPlayerController iPodMusicPlayer] nowPlayingItem] "
      "valueForProperty:@\"title\"]";

  /// Lets the phone's time pass until it gives this answer. Returns the last one.
  static std::string waits_for(RunningPhone& phone, const char* question,
                               const std::string& wanted) {
    std::string answer;
    for (int asked = 0; asked < 600; ++asked) {
      answer = phone.ask(question);
      if (answer == wanted || phone.ask("advance 0.1") != "ok") break;
    }
    return answer;
  }
};

TEST_F(Files, AnOpenListOfMusicFollowsTheFolder) {
  RunningPhone phone(in_a_window({"--console"}));
  ASSERT_EQ(waits_for(phone, kSongs, "1"), "1");
  ASSERT_EQ(phone.ask("system open com.apple.Music"), "ok");
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_EQ(phone.ask("process Music"), "ok");
  ASSERT_EQ(waits_for(phone, kRows, "1"), "1");
  media_tests::write_tone(music() / "another.flac");
  EXPECT_EQ(waits_for(phone, kRows, "2"), "2");
  fs::remove(music() / "tone.flac");
  fs::rename(music() / "another.flac", music() / "moved.flac");
  EXPECT_EQ(waits_for(phone, kRows, "1"), "1");
  ASSERT_EQ(phone.ask("process SpringBoard"), "ok");
  EXPECT_EQ(phone.ask(kSongs), "1");
}

TEST_F(Files, TheBarOfMusicFollowsTheTagsOfItsSong) {
  RunningPhone phone(in_a_window({"--console"}));
  ASSERT_EQ(waits_for(phone, kSongs, "1"), "1");
  ASSERT_EQ(phone.ask("print [[SBMediaController sharedInstance] togglePlayPause]"), "YES");
  ASSERT_EQ(phone.ask("print [[SBMediaController sharedInstance] togglePlayPause]"), "YES");
  ASSERT_EQ(phone.ask("system open com.apple.Music"), "ok");
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_EQ(phone.ask("process Music"), "ok");
  const char* const title =
      "print [[[[[UIApplication sharedApplication] miniBar] subviews] objectAtIndex:2] text]";
  ASSERT_EQ(waits_for(phone, title, "\"tone\""), "\"tone\"");
  host::media::SongTags tags;
  tags.title = "Another Name";
  media_tests::write_song(music() / "tone.flac", tags);
  EXPECT_EQ(waits_for(phone, title, "\"Another Name\""), "\"Another Name\"");
}

TEST_F(Files, AReadingThatWasInterruptedIsFinishedBeforeTheExtensionsStart) {
  run_once();
  media_tests::write_bytes(root() / "var/mobile/Media/library.sqlite.being-made", "");
  media_tests::write_tone(music() / "another.flac");
  RunningPhone phone(in_a_window({"--console"}));
  EXPECT_EQ(phone.ask(kSongs), "2");
  const int read = static_cast<int>(phone.errors().find("2 songs"));
  const int loaded = static_cast<int>(phone.errors().find("loaded Sonavue2"));
  EXPECT_GE(read, 0);
  EXPECT_LT(read, loaded);
  EXPECT_EQ(fs::exists(root() / "var/mobile/Media/library.sqlite.being-made"), false);
}

TEST_F(Files, OfTheCommandLineArePlayedByANewPhone) {
  const fs::path outside = folder() / "outside";
  fs::create_directories(outside);
  media_tests::write_tone(outside / "first.flac");
  media_tests::write_tone(outside / "then.wav");
  RunningPhone phone(headless({"--console", outside / "then.wav", outside / "first.flac"}));
  EXPECT_EQ(phone.ask(kTitle), "\"then\"");
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] isPlaying]"), "YES");
  EXPECT_EQ(phone.ask(kSongs), "3");
  EXPECT_EQ(phone.ask("advance 1.5"), "ok");
  EXPECT_EQ(phone.ask(kTitle), "\"first\"");
}

TEST_F(Files, OfASecondStartArePlayedByTheRunningPhone) {
  const fs::path outside = folder() / "outside";
  fs::create_directories(outside);
  media_tests::write_tone(outside / "first.flac", 20);
  media_tests::write_tone(outside / "second.flac", 20);
  RunningPhone phone(in_a_window({"--console"}));
  ASSERT_EQ(waits_for(phone, kSongs, "1"), "1");
  for (const char* name : {"first", "second"}) {
    RunningPhone second(in_a_window({outside / (std::string(name) + ".flac")}));
    EXPECT_EQ(second.wait_for_end(), 0);
    ASSERT_THAT(second.error_lines(), testing::SizeIs(1)) << second.errors();
    EXPECT_THAT(second.error_lines()[0], testing::HasSubstr("plays the music"));
    const std::string title = std::string("\"") + name + "\"";
    EXPECT_EQ(waits_for(phone, kTitle, title), title) << phone.errors();
  }
  EXPECT_EQ(phone.ask(kSongs), "3");
}

TEST_F(Files, ArePlayedOnceAndNotAgainByAHomeScreenThatIsStartedAgain) {
  RunningPhone phone(headless({"--console", music() / "tone.flac"}));
  EXPECT_EQ(phone.ask(kTitle), "\"tone\"");
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] isPlaying]"), "YES");
  const pid_t home_screen = phone.home_screen();
  kill(home_screen, SIGKILL);
  ASSERT_NE(phone.wait_for_home_screen_after(home_screen), 0);
  EXPECT_EQ(phone.ask("print [[SBMediaController sharedInstance] isPlaying]"), "NO");
}

TEST_F(Files, ThatCannotBePlayedAreALineEach) {
  const fs::path letter = folder() / "letter\n.txt";
  media_tests::write_bytes(letter, "hello");
  const Arguments refused = {letter, "https://example.org/a.mp3", folder() / "gone.mp3"};
  Arguments all = headless({"--console"});
  all.insert(all.end(), refused.begin(), refused.end());
  {
    RunningPhone phone(all);
    EXPECT_EQ(phone.wait_for_end(), 2);
    ASSERT_THAT(phone.error_lines(), testing::SizeIs(3)) << phone.errors();
    EXPECT_THAT(phone.error_lines()[0],
                testing::HasSubstr("letter\\n.txt is not music of a kind that can be played"));
    EXPECT_THAT(phone.error_lines()[1], testing::HasSubstr("a.mp3 is an address"));
    EXPECT_THAT(phone.error_lines()[2], testing::HasSubstr("gone.mp3 cannot be found"));
  }
  all.push_back(music() / "tone.flac");
  RunningPhone phone(all);
  EXPECT_EQ(phone.ask(kTitle), "\"tone\"");
  EXPECT_EQ(phone.count_of_errors_with("sonavue: "), 3) << phone.errors();
}

}  // namespace
