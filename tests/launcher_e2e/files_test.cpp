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

}  // namespace
