#include <fstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

using Extensions = PhoneTest;

TEST_F(Extensions, OneThatCrashesFiveTimesWhileLoadingIsSkippedAndThePhoneStarts) {
  install("Crasher", TEST_CRASHING_EXTENSION);
  RunningPhone phone(headless());
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  EXPECT_EQ(phone.count_of_errors_with("SpringBoard ended by signal 6"), 5);
  EXPECT_EQ(phone.count_of_errors_with("Crasher is left out: it crashed 5 times"), 1);
  EXPECT_EQ(phone.count_of_errors_with("loaded Crasher"), 0);
}

TEST_F(Extensions, ASkippedOneIsSkippedAgainAtTheNextStart) {
  install("Crasher", TEST_CRASHING_EXTENSION);
  {
    RunningPhone phone(headless());
    ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  }
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("Crasher is left out"), 1);
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

TEST_F(Extensions, AnUnrelatedOneWorksBesideOurs) {
  install("Whisper", TEST_EXTENSION);
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("print [@\"hello\" uppercaseString]"), "\"HELLO (whispered)\"");
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("loaded Sonavue2"), 1);
  EXPECT_EQ(phone.count_of_errors_with("loaded Whisper"), 1);
}

TEST_F(Extensions, AnotherOneReceivesTheTapsOnTheIconThatOursDrags) {
  install("Eavesdropper", TEST_LISTENING_EXTENSION);
  switch_drag_on();
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("advance 1"), "ok");
  EXPECT_EQ(phone.ask("print [[musicIcon gestureRecognizers] count]"), "1");
  EXPECT_EQ(phone.ask("tap on musicIcon"), "ok");
  EXPECT_EQ(phone.ask("print [Eavesdropper liftedFingers]"), "1");
  EXPECT_EQ(phone.ask("print [Eavesdropper tappedIcons]"), "1");
  EXPECT_EQ(phone.ask("advance 1"), "ok");
  EXPECT_EQ(phone.ask("button home"), "ok");
  EXPECT_EQ(phone.ask("advance 1"), "ok");
  EXPECT_EQ(phone.ask("drag 57 332 157 232 0.5"), "ok");
  EXPECT_EQ(phone.ask("advance 2"), "ok");
  EXPECT_EQ(phone.ask("print isShow"), "YES");
  EXPECT_EQ(phone.ask("print [Eavesdropper liftedFingers]"), "1")
      << "the drag has taken the icon's touch";
  EXPECT_EQ(phone.ask("print [Eavesdropper tappedIcons]"), "1");
}

TEST_F(Extensions, AnInvalidLibraryIsOneLineAndNoCrash) {
  fs::create_directories(libraries());
  media_tests::write_bytes(libraries() / "Nonsense.so", "this is no library");
  std::ofstream(libraries() / "Nonsense.plist")
      << "{ Filter = { Bundles = (\"com.apple.springboard\"); }; }\n";
  RunningPhone phone(headless({"--console"}));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("Nonsense is left out"), 1);
}

}  // namespace
