#include "tests/launcher_e2e/phone_test.h"
#include "tests/support/desktop_display.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;
using testing::StartsWith;

constexpr int kLeftButton = 1;

/// What a played recording must leave as it was.
const char* const kLooks[] = {
    "print isShow",
    "print [searchBar text]",
    "print isSearching",
    "print [result count]",
    "print [container contentOffset]",
    "print [tableView contentOffset]",
    "print [musicIcon frame]",
    "tree",
};

class Recorded : public PhoneTest {
 protected:
  Recorded() {
    for (const char* title : {"Between Two Lighthouses", "Arrivals", "A Bell"}) {
      host::media::SongTags tags;
      tags.title = title;
      tags.artist = "The Keepers";
      tags.album = "Harbour";
      media_tests::write_song(music() / (std::string(title) + ".flac"), tags);
    }
    switch_drag_on();
  }

  fs::path script() const { return pictures() / "session.scn"; }
  fs::path pictures() const { return folder() / "pictures"; }
  std::string recorded() const { return media_tests::read_bytes(script()); }

  Arguments on(const std::string& device, const Arguments& more = {}) const {
    Arguments made = {"--console", "--root",        folder() / device, "--music",
                      music(),     "--screenshots", pictures()};
    fs::create_directories(folder() / device);
    fs::copy(root(), folder() / device,
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    made.insert(made.end(), more.begin(), more.end());
    return made;
  }
  static std::vector<std::string> state_of(RunningPhone& phone) {
    std::vector<std::string> state;
    for (const char* look : kLooks)
      state.push_back(phone.ask(look));
    return state;
  }
  static void say_all(RunningPhone& phone, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
      ASSERT_EQ(phone.ask(line), "ok") << line;
  }
};

TEST_F(Recorded, ADragAndASearchPlayBackEqual) {
  std::vector<std::string> state;
  {
    RunningPhone phone(on("one", {"--headless"}));
    say_all(phone, {"advance 1", "record session.scn", "drag on musicIcon 157 232 0.5",
                    "advance 1.4", "touch began 340 500", "advance 0.05", "touch moved 200 500",
                    "touch moved 100 500 0.15", "touch ended 100 500", "advance 1",
                    "drag 281 400 281 450 0.3", "advance 1", "tap on searchBar", "advance 0.5",
                    "type between", "key space", "advance 0.25", "record off"});
    state = state_of(phone);
    ASSERT_EQ(phone.ask("screenshot end.png"), "ok");
  }
  EXPECT_EQ(state[0], "YES");
  EXPECT_EQ(state[1], "\"between \"");
  EXPECT_EQ(state[3], "1");
  EXPECT_THAT(recorded(), HasSubstr("\ndrag 57 332 157 232 0.5\n"));
  EXPECT_THAT(recorded(), HasSubstr("\ntype between\nkey space\nadvance 0.25\n"));

  RunningPhone phone(on("another", {"--headless"}));
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_TRUE(phone.say("play " + script().string()));
  EXPECT_EQ(state_of(phone), state);
  EXPECT_EQ(phone.ask("compare " + (pictures() / "end.png").string()), "equal") << recorded();
  EXPECT_EQ(phone.errors().find("error"), std::string::npos) << phone.errors();
}

TEST_F(Recorded, ADragInAWindowOpensThePanelOfAPhoneWithoutOne) {
  {
    DesktopDisplay display;
    RunningPhone phone(on("one"));
    ASSERT_TRUE(display.has_window("sonavue"));
    ASSERT_TRUE(comes_true([&] { return phone.ask("rest") == "ok"; }));
    ASSERT_EQ(phone.ask("record session.scn"), "ok");
    display.point_at(0.2, 0.452);
    display.hold(kLeftButton);
    for (int i = 1; i <= 10; ++i)
      display.point_at(0.2 + 0.02 * i, 0.452 - 0.01 * i);
    display.let_go(kLeftButton);
    EXPECT_TRUE(comes_true([&] { return phone.ask("print isShow") == "YES"; })) << recorded();
    display.press("F1");
    EXPECT_TRUE(comes_true([&] { return phone.ask("print isShow") == "NO"; }));
    EXPECT_EQ(phone.ask("record off"), "ok");
  }
  ASSERT_THAT(recorded(), HasSubstr("\ntouch began "));
  ASSERT_THAT(recorded(), HasSubstr("\nbutton home down\n"));

  // Up to the press of the Home button the panel is open.
  const std::string whole = recorded();
  media_tests::write_bytes(folder() / "drag.scn", whole.substr(0, whole.find("button home down")));
  RunningPhone phone(on("another", {"--headless"}));
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_TRUE(phone.say("play " + (folder() / "drag.scn").string()));
  EXPECT_EQ(phone.ask("print isShow"), "YES") << whole;
  ASSERT_TRUE(phone.say("play " + script().string()));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
}

TEST_F(Recorded, FilesAreNewAndRecordingsEndOnce) {
  RunningPhone phone(on("one", {"--headless"}));
  EXPECT_EQ(phone.ask("record off"), "error: nothing is being recorded");
  EXPECT_EQ(phone.ask("record session.scn"), "ok");
  EXPECT_EQ(phone.ask("record other.scn"),
            "error: " + script().string() + " is being recorded; `record off` ends it");
  say_all(phone, {"button home", "system control-centre", "gesture shake"});
  EXPECT_THAT(phone.ask("key return"), StartsWith("error: "));
  EXPECT_EQ(phone.ask("record off"), "ok");
  EXPECT_EQ(phone.ask("record session.scn"), "error: " + script().string() + ": File exists");
  EXPECT_EQ(recorded(),
            "# Recorded on iPhone7,2.\nbutton home\nsystem control-centre\n"
            "gesture shake\n");
}

TEST_F(Recorded, WhatWasDoneBeforeTheEndIsInTheFile) {
  RunningPhone phone(on("one", {"--headless"}));
  say_all(phone, {"record session.scn", "advance 0.5", "button home", "advance 2"});
  EXPECT_EQ(recorded(), "# Recorded on iPhone7,2.\nadvance 0.5\nbutton home\n");
  phone.kill_launcher();
  // The home screen may have seen the end already, and have written the last pause.
  EXPECT_THAT(recorded(), StartsWith("# Recorded on iPhone7,2.\nadvance 0.5\nbutton home\n"));
}

}  // namespace
