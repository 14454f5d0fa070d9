#include <map>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;
using testing::StartsWith;

using Console = PhoneTest;

const char* const kLooks[] = {
    "print isShow",
    "print [musicIcon frame]",
    "print [music frame]",
    "print [cover alpha]",
    "print [[SBIconController sharedInstance] isEditing]",
};

std::vector<std::string> state_of(RunningPhone& phone) {
  std::vector<std::string> state;
  for (const char* look : kLooks)
    state.push_back(phone.ask(look));
  return state;
}

TEST_F(Console, InvalidLinesNameTheColumnAndChangeNothing) {
  RunningPhone phone(headless({"--console"}));
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  const auto before = state_of(phone);
  ASSERT_EQ(before[0], "NO");

  const std::map<std::string, int> lines = {
      {"frobnicate", 1},
      {"  frobnicate", 3},
      {"advance", 8},
      {"advance soon", 9},
      {"advance -1", 9},
      {"advance 1e99", 9},
      {"tap 10", 7},
      {"tap 10 20 1 more", 13},
      {"tap on nil", 8},
      {"touch flew 1 2", 7},
      {"drag 1 2 3", 11},
      {"drag 187 300 187 500 nan", 22},
      {"button fire", 8},
      {"system edit perhaps", 8},
      {"system open", 12},
      {"print", 6},
      {"print @\"not closed", 7},
      {"print {1, 2", 12},
      {"print [[UIScreen mainScreen]", 29},
      {"print nobodyKnowsThis", 7},
      {"print [NoSuchClass new]", 8},
      {"print [UIView frobnicate]", 15},
      {"print [NSString stringWithFormat:@\"%@ %s\"]", 17},
      {"print [NSArray arrayWithObjects:musicIcon]", 16},
      {"expect isShow", 14},
      {"expect isShow <> NO", 16},
      {"screenshot", 11},
  };
  for (const auto& [line, column] : lines) {
    const std::string answer = phone.ask(line);
    EXPECT_THAT(answer, StartsWith("error: ")) << line;
    EXPECT_TRUE(answer.ends_with("(column " + std::to_string(column) + ")"))
        << line << " -> " << answer;
  }
  EXPECT_EQ(state_of(phone), before);
}

TEST_F(Console, LinesOfAbsurdSizeAreRefusedAndTheNextIsServed) {
  RunningPhone phone(headless({"--console"}));
  EXPECT_THAT(phone.ask("print " + std::string(5000, '[')), StartsWith("error: "));
  EXPECT_THAT(phone.ask("print @\"" + std::string(1 << 20, 'a') + "\""), StartsWith("error: "));
  EXPECT_THAT(phone.ask("print @\"\xff\xfe\""), StartsWith("error: "));
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("ended by signal"), 0);
}

TEST_F(Console, MessagesThatRaiseAreErrorsAndThePhoneContinues) {
  RunningPhone phone(headless({"--console"}));
  const pid_t process = phone.wait_for_home_screen_after(0);
  EXPECT_THAT(phone.ask("print [@\"abc\" substringFromIndex:99]"), StartsWith("error: "));
  EXPECT_THAT(phone.ask("print [[NSArray array] objectAtIndex:5]"), StartsWith("error: "));
  EXPECT_EQ(phone.ask("print [nil description]"), "nil");
  EXPECT_EQ(phone.home_screen(), process);
}

TEST_F(Console, ComparesTheScreenWithAPictureAndMarksWhatDiffers) {
  const fs::path pictures = folder() / "pictures";
  const std::string home = pictures / "home.png";
  RunningPhone phone(headless({"--console", "--screenshots", pictures}));
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  ASSERT_EQ(phone.ask("screenshot home.png"), "ok");
  EXPECT_EQ(phone.ask("compare " + home), "equal");
  ASSERT_EQ(phone.ask("system control-centre"), "ok");
  ASSERT_EQ(phone.ask("advance 1"), "ok");
  const fs::path marked = pictures / "home-difference.png";
  EXPECT_FALSE(fs::exists(marked));
  const std::string answer = phone.ask("compare " + home);
  EXPECT_THAT(answer, StartsWith("error: the screen differs from " + home + " in "));
  EXPECT_TRUE(answer.ends_with("; the difference is in " + marked.string())) << answer;
  EXPECT_TRUE(fs::exists(marked));
  // A picture of another size is not compared pixel by pixel.
  const auto small = media_tests::png_picture(3, 4, 0xFF0000);
  media_tests::write_bytes(pictures / "small.png", media_tests::as_text(small));
  EXPECT_EQ(phone.ask("compare " + (pictures / "small.png").string()),
            "error: the screen has 750 × 1334 pixels, and " + (pictures / "small.png").string() +
                " has 3 × 4");
}

TEST_F(Console, ListsTheViewsOfTwoPhonesAlike) {
  std::string trees[2];
  for (std::string& tree : trees) {
    RunningPhone phone(headless({"--console"}));
    ASSERT_EQ(phone.ask("advance 1"), "ok");
    tree = phone.ask("tree");
    EXPECT_EQ(phone.ask("tree musicIcon").substr(0, 12), "  SBIconView");
    EXPECT_EQ(phone.ask("tree isShow"), "error: this is not a view (column 6)");
  }
  EXPECT_THAT(trees[0], StartsWith("  UIWindow {{0, 0}, {375, 667}}\n    "));
  EXPECT_TRUE(trees[0].ends_with("\nok"));
  EXPECT_EQ(trees[0].find("0x"), std::string::npos);
  EXPECT_EQ(trees[0], trees[1]);
}

}  // namespace
