#include <fstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::HasSubstr;
using testing::SizeIs;

/// A library in a folder of its maker's, which is not installed on the device.
class TriedExtension : public PhoneTest {
 protected:
  static constexpr const char* kQuestion = "print [@\"hello\" uppercaseString]";
  static constexpr const char* kWhispered = "\"HELLO (whispered)\"";

  TriedExtension() { fs::copy_file(TEST_EXTENSION, library()); }

  fs::path library() const { return folder() / "Guest.so"; }
  void write_filter(const std::string& filter) const {
    media_tests::write_bytes(folder() / "Guest.plist", "{ Filter = { " + filter + " }; }");
  }
  Arguments trying(const Arguments& more = {"--console"}) const {
    Arguments made = headless({"--extension", library()});
    made.insert(made.end(), more.begin(), more.end());
    return made;
  }
  /// From now on the console asks Settings.
  static bool opens_settings(RunningPhone& phone) {
    return phone.ask("advance 1") == "ok" &&
           phone.ask("system open com.apple.Preferences") == "ok" &&
           phone.ask("advance 1") == "ok" && phone.ask("process Preferences") == "ok";
  }
  void expect_refusal(const fs::path& file, const std::string& reason) const {
    RunningPhone phone(headless({"--extension", file}));
    EXPECT_EQ(phone.wait_for_end(), 2);
    ASSERT_THAT(phone.error_lines(), SizeIs(1)) << phone.errors();
    EXPECT_THAT(phone.error_lines()[0], HasSubstr(file.string() + reason));
  }
};

TEST_F(TriedExtension, RunsInTheHomeScreenAndIsNotInstalled) {
  {
    RunningPhone phone(trying());
    EXPECT_EQ(phone.ask(kQuestion), kWhispered);
    EXPECT_EQ(phone.ask("print isShow"), "NO") << "the installed ones are loaded, too";
    EXPECT_EQ(phone.count_of_errors_with("[SpringBoard] info: loaded Guest"), 1) << phone.errors();
  }
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask(kQuestion), "\"HELLO\"");
}

TEST_F(TriedExtension, WithoutAFilterStaysOutOfApplications) {
  RunningPhone phone(trying());
  ASSERT_TRUE(opens_settings(phone));
  EXPECT_EQ(phone.ask(kQuestion), "\"HELLO\"");
}

TEST_F(TriedExtension, ItsFilterDecidesAsForInstalledOnes) {
  write_filter("Bundles = (\"com.apple.Preferences\");");
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask(kQuestion), "\"HELLO\"");
  ASSERT_TRUE(opens_settings(phone));
  EXPECT_EQ(phone.ask(kQuestion), kWhispered);
}

TEST_F(TriedExtension, TakesThePlaceOfAnInstalledOneWithTheSameName) {
  install("Guest", TEST_CRASHING_EXTENSION);
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask(kQuestion), kWhispered);
  EXPECT_EQ(phone.count_of_errors_with("loaded Guest"), 1) << phone.errors();
}

TEST_F(TriedExtension, WhatIsNotALibraryIsOneLine) {
  expect_refusal(music() / "tone.flac", " is not a library");
  expect_refusal(folder() / "nothing.so", " cannot be found");
  expect_refusal(folder(), " is not a library");
  fs::resize_file(library(), 4096);
  expect_refusal(library(), " is cut off");
}

TEST_F(TriedExtension, WhatDoesNotLoadIsOneLineAndThePhoneStarts) {
  fs::copy_file(TEST_MISSING_SYMBOL, library(), fs::copy_options::overwrite_existing);
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("Guest"), 1) << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("Guest is left out: "), 1) << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("a_function_that_nobody_has"), 1) << phone.errors();
}

TEST_F(TriedExtension, ARunningPhoneDoesNotTakeIt) {
  RunningPhone first(headless({"--console"}));
  ASSERT_EQ(first.ask("print 1"), "1");
  RunningPhone second(trying({}));
  EXPECT_EQ(second.wait_for_end(), 4);
  ASSERT_THAT(second.error_lines(), SizeIs(1)) << second.errors();
  EXPECT_THAT(second.error_lines()[0], HasSubstr("extensions are loaded when a phone starts"));
}

}  // namespace
