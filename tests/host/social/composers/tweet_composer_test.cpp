#include "host/social/composers/tweet_composer.h"

#include <memory>

#include "host/social/composers/exports.h"
#include "host/social/delivery/configuration.h"
#include "host/uikit/scroll/exports.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/text_view/text_view.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UIViewController.h"
#include "tests/host/uikit/support/recording_view.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/support/media_fixtures.h"

namespace host::test {
namespace {

using uikit::press_key;
using uikit::type_text;
using Result = TWTweetComposeViewControllerResult;
constexpr Result kCancelled = TWTweetComposeViewControllerResultCancelled;
constexpr Result kDone = TWTweetComposeViewControllerResultDone;

int living = 0;

/// Counts the living instances of a class.
template <class Handle>
struct Counted : objc::Implementation<Counted<Handle>, Handle> {
  explicit Counted(Handle owner) : objc::Implementation<Counted<Handle>, Handle>(owner) {
    ++living;
  }
  ~Counted() { --living; }
};

template <class Handle>
Handle made(const char* name, const char* base) {
  if (!objc_getClass(name)) objc::ClassBuilder(name, base).state<Counted<Handle>>().finish();
  const objc::Object cls(objc_getClass(name));
  return objc::send<Handle>(objc::send<Handle>(cls, "alloc"_sel), "init"_sel);
}

NSString from_utf8(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

class TweetComposerTest : public UIKitTest {
 protected:
  TweetComposerTest() {
    uikit::export_scroll();
    uikit::export_text_view();
    social::export_twitter();
    social::Configuration configuration;
    configuration.outbox = folder / "Outbox";
    social::configure(configuration);
    living = 0;
  }
  ~TweetComposerTest() override { social::configure({}); }

  /// Presents a composer as an extension does, retaining neither of the controllers.
  void show(const std::string& text, BOOL animated = YES) {
    composer =
        made<TWTweetComposeViewController>("CountedComposer", "TWTweetComposeViewController");
    composer.setCompletionHandler(objc::block([this, alive = handler_life](Result result) {
      results.push_back(result);
      if (on_result) on_result();
    }));
    EXPECT_TRUE(composer.setInitialText(from_utf8(text)));
    const auto root = made<UIViewController>("CountedController", "UIViewController");
    window.setRootViewController(root);
    root.presentModalViewController(composer, animated);
    composer.release();
    root.release();
    if (animated) advance(1);
  }
  void clear_window_at_the_end() {
    on_result = [this] { window.setRootViewController(nil); };
  }

  template <class View>
  View part(social::ComposerTag tag) const {
    composer.view().layoutIfNeeded();
    return objc::cast<View>(composer.view().viewWithTag(tag));
  }
  UITextView text_view() const { return part<UITextView>(social::kTextTag); }
  UIButton post() const { return part<UIButton>(social::kPostTag); }
  UILabel count() const { return part<UILabel>(social::kCountTag); }
  std::string counted() const { return count().text().UTF8String(); }
  void tap_on(social::ComposerTag tag) {
    const UIView view = part<UIView>(tag);
    tap(view.convertPointToView(view.bounds().centre(), nil));
  }
  std::string sent(const std::string& file) const {
    return media_tests::read_bytes(folder / ("Outbox/" + file));
  }
  bool nothing_was_sent() const { return !std::filesystem::exists(folder / "Outbox"); }
  void expect_all_gone() {
    advance(1);
    EXPECT_EQ(window.subviews().count(), 0u);
    EXPECT_FALSE(uikit::first_responder());
    EXPECT_EQ(living, 0);
    EXPECT_EQ(handler_life.use_count(), 1) << "the handler is kept";
  }

  media_tests::TemporaryFolder folder;
  TWTweetComposeViewController composer;
  std::vector<Result> results;
  std::function<void()> on_result;
  std::shared_ptr<int> handler_life = std::make_shared<int>();
};

TEST_F(TweetComposerTest, ShowsTheTextReadyForTyping) {
  show("#NowPlaying  Nobody with #Sonavue2");
  EXPECT_STREQ(text_view().text().UTF8String(), "#NowPlaying  Nobody with #Sonavue2");
  EXPECT_EQ(uikit::first_responder(), text_view());
  type_text("!"_ns);
  EXPECT_TRUE(text_view().text().hasSuffix("#Sonavue2!"_ns));
  clear_window_at_the_end();
  tap_on(social::kCancelTag);
  expect_all_gone();
}

TEST_F(TweetComposerTest, TheTextIsTheUsersOnceItIsShown) {
  show("first");
  EXPECT_FALSE(composer.setInitialText("second"_ns));
  EXPECT_STREQ(text_view().text().UTF8String(), "first");
}

TEST_F(TweetComposerTest, CancellingCallsTheHandlerAndSendsNothing) {
  show("text");
  clear_window_at_the_end();
  tap_on(social::kCancelTag);
  advance(1);
  EXPECT_EQ(results, std::vector<Result>{kCancelled});
  EXPECT_TRUE(nothing_was_sent());
  EXPECT_FALSE(window.rootViewController());
  expect_all_gone();
}

TEST_F(TweetComposerTest, PostingSendsTheEditedTextAndCallsTheHandler) {
  show("שלום\U0001F600e\u0301");
  type_text("\n#1"_ns);
  clear_window_at_the_end();
  tap_on(social::kPostTag);
  advance(1);
  EXPECT_EQ(results, std::vector<Result>{kDone});
  EXPECT_EQ(sent("share-1.txt"), "שלום\U0001F600e\u0301\n#1\n");
  expect_all_gone();
}

TEST_F(TweetComposerTest, DismissesItselfWhenItsHandlerDoesNothing) {
  show("text");
  tap_on(social::kCancelTag);
  advance(1);
  EXPECT_EQ(results.size(), 1u);
  EXPECT_FALSE(window.rootViewController().presentedViewController());
  window.setRootViewController(nil);
  expect_all_gone();
}

TEST_F(TweetComposerTest, AHandlerMayDismissItItself) {
  show("text");
  on_result = [this] { window.rootViewController().dismissModalViewControllerAnimated(YES); };
  tap_on(social::kCancelTag);
  advance(1);
  EXPECT_EQ(results.size(), 1u);
  window.setRootViewController(nil);
  expect_all_gone();
}

TEST_F(TweetComposerTest, AHandlerMayKeepItsComposer) {
  show("text");
  composer.setCompletionHandler(
      objc::block([kept = objc::Ref<TWTweetComposeViewController>::retain(composer)](Result) {}));
  clear_window_at_the_end();
  tap_on(social::kCancelTag);
  advance(1);
  window.setRootViewController(nil);
  expect_all_gone();
}

TEST_F(TweetComposerTest, NeedsNoHandler) {
  show("text");
  composer.setCompletionHandler(nullptr);
  tap_on(social::kCancelTag);
  advance(1);
  EXPECT_FALSE(window.rootViewController().presentedViewController());
  window.setRootViewController(nil);
  expect_all_gone();
}

TEST_F(TweetComposerTest, CountsTheRemainingVisibleCharacters) {
  show(std::string(138, 'x'));
  EXPECT_EQ(counted(), "2");
  type_text(from_utf8("e\u0301"));
  EXPECT_EQ(counted(), "1");
  type_text(from_utf8("\U0001F600"));
  EXPECT_EQ(counted(), "0");
  EXPECT_TRUE(post().isEnabled());
}

TEST_F(TweetComposerTest, ATextThatIsTooLongIsCountedInRedAndCannotBePosted) {
  show(std::string(140, 'x'));
  const auto usual = objc::Ref<UIColor>::retain(count().textColor());
  type_text("y"_ns);
  EXPECT_EQ(counted(), "-1");
  EXPECT_FALSE(count().textColor().isEqual(usual.get()));
  EXPECT_FALSE(post().isEnabled());
  tap_on(social::kPostTag);
  advance(1);
  EXPECT_TRUE(results.empty());
  EXPECT_TRUE(nothing_was_sent());

  press_key("backspace");
  EXPECT_EQ(counted(), "0");
  EXPECT_TRUE(count().textColor().isEqual(usual.get()));
  EXPECT_TRUE(post().isEnabled());
}

TEST_F(TweetComposerTest, AcceptsATextOfTenThousandCharactersForEditing) {
  show(std::string(10000, 'x'));
  EXPECT_EQ(counted(), "-9860");
  EXPECT_FALSE(post().isEnabled());
  EXPECT_LE(text_view().frame().max_y(), text_view().superview().bounds().size.height);
}

TEST_F(TweetComposerTest, BlanksAloneCannotBePosted) {
  show("");
  EXPECT_FALSE(post().isEnabled());
  type_text(" \n"_ns);
  EXPECT_FALSE(post().isEnabled());
  type_text("x"_ns);
  EXPECT_TRUE(post().isEnabled());
}

TEST_F(TweetComposerTest, StaysWhenTheTextCouldNotBeSentAnywhere) {
  show("text");
  clear_window_at_the_end();
  media_tests::write_bytes(folder / "Outbox", "a file where the folder would be");
  tap_on(social::kPostTag);
  advance(1);
  EXPECT_TRUE(results.empty());
  EXPECT_STREQ(text_view().text().UTF8String(), "text");
  EXPECT_GT(part<UILabel>(social::kNoticeTag).text().length(), 0u);

  std::filesystem::remove(folder / "Outbox");
  tap_on(social::kPostTag);
  advance(1);
  EXPECT_EQ(results, std::vector<Result>{kDone});
  EXPECT_EQ(sent("share-1.txt"), "text\n");
}

TEST_F(TweetComposerTest, TheNextEditRemovesTheNotice) {
  show("text");
  media_tests::write_bytes(folder / "Outbox", "");
  tap_on(social::kPostTag);
  type_text("x"_ns);
  EXPECT_EQ(part<UILabel>(social::kNoticeTag).text().length(), 0u);
}

TEST_F(TweetComposerTest, ASecondTapWhileItLeavesDoesNothing) {
  show("text");
  tap_on(social::kPostTag);
  tap_on(social::kPostTag);
  tap_on(social::kCancelTag);
  objc::send<>(composer, "postPressed"_sel);
  objc::send<>(composer, "cancelPressed"_sel);
  advance(1);
  EXPECT_EQ(results, std::vector<Result>{kDone});
  EXPECT_EQ(sent("share-1.txt"), "text\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "Outbox/share-2.txt"));
}

TEST_F(TweetComposerTest, ThePageBehindIsDimmedAndTakesNoTouches) {
  const auto behind = RecordingView::make("behind", kScreen);
  window.addSubview(behind);
  show("text");
  told();
  tap({20, 600});
  EXPECT_EQ(told(), Events{});
  EXPECT_TRUE(results.empty()) << "a tap beside the card is not a decision";
  const auto dim = objc::cast<UIView>(composer.view().subviews().objectAtIndex(0));
  EXPECT_EQ(dim.frame(), kScreen);
  EXPECT_NEAR(dim.alpha(), 0.4, 0.01);
  on_result = [this] { window.setRootViewController(nil); };
  tap_on(social::kCancelTag);
  advance(1);
  told();
  tap({20, 600});
  EXPECT_EQ(told(), (Events{"behind began", "behind ended"}));
  behind.removeFromSuperview();
}

TEST_F(TweetComposerTest, ThePageBehindTakesNoTouchesUntilItHasLeft) {
  const auto behind = RecordingView::make("behind", kScreen);
  window.addSubview(behind);
  show("text");
  clear_window_at_the_end();
  tap_on(social::kCancelTag);
  advance(0.1);
  tap({20, 600});
  advance(1);
  EXPECT_EQ(RecordingView::told_of_touches(), Events{});
  tap({20, 600});
  EXPECT_EQ(RecordingView::told_of_touches(), (Events{"behind began", "behind ended"}));
  behind.removeFromSuperview();
}

TEST_F(TweetComposerTest, NothingRemainsWhenTheRootIsRemovedWhileItIsUp) {
  show("text");
  window.setRootViewController(nil);
  expect_all_gone();
  EXPECT_TRUE(results.empty()) << "no decision has been made";
}

TEST_F(TweetComposerTest, NothingRemainsWhenTheRootIsRemovedWhileItAppears) {
  show("text", NO);
  window.setRootViewController(nil);
  show("text", NO);
  window.rootViewController().dismissModalViewControllerAnimated(NO);
  window.rootViewController().presentModalViewController(
      TWTweetComposeViewController::alloc().init().autorelease(), YES);
  advance(0.1);
  window.setRootViewController(nil);
  advance(1);
  EXPECT_EQ(window.subviews().count(), 0u);
  EXPECT_FALSE(uikit::first_responder());
}

TEST_F(TweetComposerTest, TheHandlerIsCalledOnceWhenTheRootIsRemovedWhileItLeaves) {
  show("text");
  clear_window_at_the_end();
  tap_on(social::kPostTag);
  advance(0.1);
  window.setRootViewController(nil);
  expect_all_gone();
  EXPECT_EQ(results, std::vector<Result>{kDone});
}

TEST_F(TweetComposerTest, ItsWindowMayBeReleasedWhileItIsUp) {
  {
    objc::AutoreleasePool pool;
    const UIWindow own = window;
    window = UIWindow::alloc().initWithFrame(kScreen);
    window.setHidden(NO);
    show("text");
    tap_on(social::kTextTag);
    window.setHidden(YES);
    window.release();
    window = own;
  }
  expect_all_gone();
  EXPECT_TRUE(results.empty());
  EXPECT_FALSE(type_text("x"_ns));
}

}  // namespace
}  // namespace host::test
