#include "host/runtime/device_images.h"
#include "host/springboard/system/system_actions.h"
#include "host/uikit/view/responder.h"
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

TEST_F(Share, TheFrameworkIsLoadedWithTheFirstComposer) {
  play("Alpha");
  advance(1.2);
  EXPECT_FALSE(objc_getClass("TWTweetComposeViewController"));
  tap_twin();
  EXPECT_TRUE(objc_getClass("TWTweetComposeViewController"));
  EXPECT_TRUE(presenter());
}

TEST_F(Share, WithoutTheFrameworkNothingIsPresented) {
  set_device_images({});
  play("Alpha");
  advance(1.2);
  tap_twin();
  EXPECT_FALSE(presenter());
  EXPECT_TRUE(is("isShow"));
  // The panel can still be used.
  springboard::press_home();
  settle();
  EXPECT_FALSE(is("isShow"));
}

TEST_F(Share, ASongWithoutArtworkCannotBeShared) {
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

TEST_F(Share, AMissingTextLeavesItsSpace) {
  play("Alpha");
  advance(1.2);
  global<UILabel>("artist").setText(nil);
  EXPECT_EQ(shared_text(), "#NowPlaying Alpha  with #Sonavue2");
}

TEST_F(Share, TheEndOfTheComposerRemovesItsPresenter) {
  play("Alpha");
  advance(1.2);
  tap_twin();
  ASSERT_TRUE(presenter());
  // The composer's Cancel button, at the left of its bar.
  tap({62, 106});
  settle();
  EXPECT_FALSE(presenter());
  EXPECT_TRUE(is("isShow"));
  tap_twin();
  EXPECT_TRUE(presenter());
}

TEST_F(Share, ASecondTapWhileTheComposerAppearsIsIgnored) {
  play("Alpha");
  advance(1.2);
  objc::send<>(application, "tweet"_sel);
  const UIViewController first = presenter();
  objc::send<>(application, "tweet"_sel);
  EXPECT_EQ(presenter(), first);
}

/// A composer over the panel, and events that close the panel under it.
class ComposerOverPanel : public Share {
 protected:
  void SetUp() override {
    Share::SetUp();
    play("Alpha");
    advance(1.2);
  }
  void compose() {
    tap_twin();
    ASSERT_TRUE(presenter());
    ASSERT_TRUE(uikit::first_responder());
  }
  void expect_nothing_left() {
    EXPECT_FALSE(presenter());
    EXPECT_FALSE(uikit::first_responder());
    settle();
    EXPECT_FALSE(is("isShow"));
    EXPECT_FALSE(is("isBanner"));
    EXPECT_EQ(view("window").subviews().count(), views_of_window_);
  }
  void count_views() { views_of_window_ = view("window").subviews().count(); }

 private:
  NSUInteger views_of_window_ = 0;
};

TEST_F(ComposerOverPanel, EveryClosingDismissesItAtOnce) {
  const std::function<void()> closings[] = {
      [] { springboard::press_home(); },
      [] { springboard::press_lock(); },
      [] { springboard::present_banner("a message"); },
      [] { springboard::present_notification_centre(); },
  };
  count_views();
  for (const auto& close : closings) {
    compose();
    close();
    expect_nothing_left();
    springboard::press_home();
    springboard::unlock();
    settle();
    open_panel();
  }
}

TEST_F(ComposerOverPanel, ItIsDismissedWhileItAppears) {
  count_views();
  tap_on(view("music"));
  advance(0.1);
  ASSERT_TRUE(presenter());
  springboard::press_home();
  expect_nothing_left();
}

TEST_F(ComposerOverPanel, ItIsDismissedWhileItDisappears) {
  count_views();
  compose();
  tap({62, 106});
  advance(0.1);
  springboard::press_home();
  expect_nothing_left();
}

TEST_F(ComposerOverPanel, ADragBackDismissesIt) {
  count_views();
  hold(middle_of(view("music")));
  // Presented without animation, which would cancel the touch.
  const auto composer = TWTweetComposeViewController::alloc().init().autorelease();
  const auto host = UIViewController::alloc().init().autorelease();
  global<UIWindow>("window").setRootViewController(host);
  host.presentViewController(composer, NO, nullptr);
  move_by(0, 12);
  EXPECT_FALSE(presenter());
  move_by(0, 60);
  lift();
  settle();
  expect_nothing_left();
}

TEST_F(ComposerOverPanel, TheBannersEndDismissesIt) {
  springboard::press_home();
  settle();
  count_views();
  objc::send<>(application, "showBanner"_sel);
  settle();
  objc::send<>(application, "tweet"_sel);
  settle();
  ASSERT_TRUE(presenter());
  springboard::press_home();
  expect_nothing_left();
}

}  // namespace
}  // namespace host::test
