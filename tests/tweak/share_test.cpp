#include "platform/Twitter/TWTweetComposeViewController.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

using TextSpy = MethodSpy<"setInitialText:", BOOL(NSObject, NSString)>;

class Share : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    open_panel();
  }
  UIViewController presenter() const { return global<UIWindow>("window").rootViewController(); }

  void tap_twin() {
    tap_on(view("music"));
    settle();
  }
  std::string shared_text() {
    const TextSpy text_of_composer(TWTweetComposeViewController::cls());
    tap_twin();
    return text_of_composer.count() == 1 ? text(std::get<0>(text_of_composer.last())) : "";
  }
};

TEST_F(Share, ATapOnTheTwinComposesATextOfTitleAndArtist) {
  play("Alpha");
  advance(1.2);
  EXPECT_EQ(shared_text(), "#NowPlaying Alpha Xenia with #Sonavue2");
  EXPECT_TRUE(presenter());
  EXPECT_TRUE(
      presenter().presentedViewController().isKindOfClass(TWTweetComposeViewController::cls()));
  EXPECT_TRUE(is("isShow"));
}

TEST_F(Share, ASongWithoutAnArtworkCannotBeShared) {
  play("Bravo");
  advance(1.2);
  ASSERT_EQ(text(global<UILabel>("title").text()), "Bravo");
  EXPECT_EQ(shared_text(), "");
  EXPECT_FALSE(presenter());
}

TEST_F(Share, AnEmptyTitleLeavesTwoSpacesInARow) {
  play("Alpha");
  advance(1.2);
  global<UILabel>("title").setText(""_ns);
  EXPECT_EQ(shared_text(), "#NowPlaying  Xenia with #Sonavue2");
}

TEST_F(Share, ANameThatIsMissingLeavesItsSpace) {
  play("Alpha");
  advance(1.2);
  global<UILabel>("artist").setText(nil);
  EXPECT_EQ(shared_text(), "#NowPlaying Alpha  with #Sonavue2");
}

TEST_F(Share, TheEndOfTheComposerTakesItsPresenterOffTheWindow) {
  play("Alpha");
  advance(1.2);
  tap_twin();
  ASSERT_TRUE(presenter());
  // The composer's Cancel, left in its bar.
  tap({62, 106});
  settle();
  EXPECT_FALSE(presenter());
  EXPECT_TRUE(is("isShow"));
  tap_twin();
  EXPECT_TRUE(presenter());
}

}  // namespace
}  // namespace host::test
