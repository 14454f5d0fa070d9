#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "host/launcher/options.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
using testing::HasSubstr;
using testing::SizeIs;

struct Outcome {
  int status;
  std::vector<std::string> errors;
};

/// Runs the launcher as a user does, without a display.
class CommandLine : public testing::Test {
 protected:
  Outcome run(const std::string& arguments) {
    const auto errors = folder_.path() / "errors";
    const std::string line = "env -u DISPLAY -u WAYLAND_DISPLAY -u SDL_VIDEODRIVER " LAUNCHER " " +
                             arguments + " >/dev/null 2>" + errors.string();
    const int status = std::system(line.c_str());
    return {WEXITSTATUS(status), lines_of(errors)};
  }
  TemporaryFolder folder_;
};

TEST_F(CommandLine, AMissingMusicFolderIsOneLineAndStatusTwo) {
  const auto outcome = run("--headless --music /nowhere/music");
  EXPECT_EQ(outcome.status, 2);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0], HasSubstr("/nowhere/music is not a folder of music"));
}

TEST_F(CommandLine, AnUnknownDeviceIsOneLineWithTheKnownOnesAndStatusTwo) {
  const auto outcome = run("--headless --device iPhone99,9");
  EXPECT_EQ(outcome.status, 2);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0], HasSubstr("iPhone99,9"));
  EXPECT_THAT(outcome.errors[0], HasSubstr("iPhone7,2"));
}

TEST_F(CommandLine, ARootThatCannotBeWrittenIsOneLineAndStatusTwo) {
  const auto outcome = run("--headless --root /dev/null/root");
  EXPECT_EQ(outcome.status, 2);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0], HasSubstr("/dev/null/root"));
}

TEST_F(CommandLine, AReportNeedsAScriptAndAPlace) {
  const std::string script = folder_.path() / "a.scn";
  write_file(script, "");
  const struct {
    std::string arguments;
    std::string reason;
  } refused[] = {
      {"--headless --junit report.xml", "--junit requires --script"},
      {"--headless --script " + script + " --junit /nowhere/report.xml",
       "/nowhere/report.xml cannot be written: /nowhere is not a folder"},
      {"--headless --script " + script + " --junit /", "/ is a folder"},
      {"--headless --console --script " + script + " --junit report.xml",
       "--console takes one --script, and no --junit"},
      {"--headless --console --script " + script + " --script " + script,
       "--console takes one --script, and no --junit"},
  };
  for (const auto& [arguments, reason] : refused) {
    const auto outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    ASSERT_THAT(outcome.errors, SizeIs(1)) << arguments;
    EXPECT_THAT(outcome.errors[0], HasSubstr(reason));
  }
}

TEST_F(CommandLine, AMissingScriptIsOneLineAndStatusTwo) {
  const auto outcome = run("--headless --script /nowhere/a.scn");
  EXPECT_EQ(outcome.status, 2);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0], HasSubstr("/nowhere/a.scn is not a script"));
}

TEST_F(CommandLine, UnknownOptionsAreOneLineAndStatusTwo) {
  const auto outcome = run("--colour red");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.errors, SizeIs(1));
}

TEST_F(CommandLine, APhoneIsNotBothOnAPageAndNowhere) {
  const auto outcome = run("--headless --browser");
  EXPECT_EQ(outcome.status, 2);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0], HasSubstr("--browser"));
}

TEST_F(CommandLine, HelpAndVersionSucceedWithNothingOnTheErrorStream) {
  EXPECT_EQ(run("--help").status, 0);
  const auto version = run("--version");
  EXPECT_EQ(version.status, 0);
  EXPECT_THAT(version.errors, SizeIs(0));
}

TEST(Options, RepeatedOnesAccumulateAndPathsBecomeAbsolute) {
  const char* arguments[] = {"sonavue", "--music",   "/usr", "--music", "/etc",     "--without",
                             "a.b",     "--without", "c.d",  "--root",  "relative", "--headless"};
  const auto read = read_options(std::size(arguments), arguments);
  const auto& options = std::get<Options>(read);
  EXPECT_EQ(options.music, (std::vector<std::filesystem::path>{"/usr", "/etc"}));
  EXPECT_EQ(options.without, (std::vector<std::string>{"a.b", "c.d"}));
  EXPECT_TRUE(options.root.is_absolute());
  EXPECT_EQ(options.device, "iPhone7,2");
}

TEST(Options, OnlyTheDefaultDeviceIsSetUp) {
  const auto read = [](std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "sonavue");
    return std::get<Options>(read_options(static_cast<int>(arguments.size()), arguments.data()));
  };
  EXPECT_TRUE(read({}).is_set_up);
  EXPECT_EQ(read({}).root, default_device_root());
  EXPECT_TRUE(read({"--headless", "--console"}).is_set_up);
  EXPECT_FALSE(read({"--root", default_device_root().c_str()}).is_set_up);
  EXPECT_FALSE(read({"--script", "/etc/passwd"}).is_set_up);
  EXPECT_FALSE(read({"--new-phone"}).is_set_up);
  EXPECT_TRUE(read({"--new-phone"}).root.empty());
}

TEST(Options, ANamedRootExcludesANewPhone) {
  const char* arguments[] = {"sonavue", "--new-phone", "--root", "/tmp/phone"};
  const auto read = read_options(std::size(arguments), arguments);
  const auto& ending = std::get<Ending>(read);
  EXPECT_EQ(ending.status, kBadUsage);
  EXPECT_THAT(ending.text, HasSubstr("--new-phone"));
  EXPECT_THAT(ending.text, HasSubstr("--root"));
}

TEST(Options, HelpSaysHowToGetAnUntouchedDevice) {
  const char* arguments[] = {"sonavue", "--help"};
  const auto read = read_options(std::size(arguments), arguments);
  EXPECT_THAT(std::get<Ending>(read).text, HasSubstr("--new-phone "));
}

TEST(Options, HelpSaysWhereMessagesGoAndWhatTheExitStatusMeans) {
  const char* arguments[] = {"sonavue", "--help"};
  const auto read = read_options(std::size(arguments), arguments);
  const auto& help = std::get<Ending>(read).text;
  for (const char* text : {"Exit status", "  4    another process", "SONAVUE_PATIENCE", ".log"})
    EXPECT_THAT(help, HasSubstr(text)) << text;
}

TEST(Options, HelpListsTheKeysOfTheWindow) {
  const char* arguments[] = {"sonavue", "--help"};
  const auto read = read_options(std::size(arguments), arguments);
  const auto& help = std::get<Ending>(read).text;
  for (const char* key :
       {"F1, Home", "F2", "F3", "F4", "F5, F6", "F7", "Control-G", "F11, Alt-Return", "F12, ?",
        "Space", "Control-Left, Right", "Control-Up, Down", "Tab, Shift-Tab", "Arrows", "Return",
        "Control-F", "Escape", "Wheel", "Right click"})
    EXPECT_THAT(help, HasSubstr(std::string("  ") + key + " ")) << key;
}

TEST(Options, TheClockIsSteppedOnlyUnderAConsoleOrScript) {
  Options options;
  options.headless = true;
  EXPECT_FALSE(options.has_stepped_clock());
  options.console = true;
  EXPECT_TRUE(options.has_stepped_clock());
  options.headless = false;
  EXPECT_FALSE(options.has_stepped_clock());
}

TEST(Options, APhoneOnAPageHasNoWindowButItsUsersClock) {
  Options options;
  options.browser = options.console = true;
  EXPECT_FALSE(options.has_window());
  EXPECT_FALSE(options.has_stepped_clock());
  EXPECT_TRUE(options.takes_part_in_desktop());
}

TEST(Options, OnlyPhonesThatAreSeenTakePartInTheDesktop) {
  Options options;
  const auto is_told = [&] {
    const auto arguments = home_screen_arguments(options);
    return std::ranges::find(arguments, "--desktop") != arguments.end();
  };
  EXPECT_TRUE(is_told());
  options.headless = true;
  EXPECT_FALSE(is_told());
  options.desktop = true;
  EXPECT_TRUE(is_told());
}

TEST(Options, TheDeviceIsInTheUsersDataFolder) {
  setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(default_device_root(), "/data/sonavue/device");
  unsetenv("XDG_DATA_HOME");
  setenv("HOME", "/home/owl", 1);
  EXPECT_EQ(default_device_root(), "/home/owl/.local/share/sonavue/device");
}

}  // namespace
