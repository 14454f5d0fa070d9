#include "host/social/composers/tweet_composer.h"

#include <utility>

#include "host/social/composers/character_count.h"
#include "host/social/composers/composer_place.h"
#include "host/social/delivery/share_target.h"
#include "host/uikit/text_layout/styled_text.h"
#include "platform/UIKit/UIDevice.h"
#include "platform/UIKit/UIScreen.h"

namespace host::social {
namespace {

constexpr CGFloat kDimAlpha = 0.4;
constexpr double kLeavingDuration = 0.3;
/// The card starts above the screen, at this distance from its top edge.
constexpr CGFloat kBeyondEdge = 20;

ScreenKind screen_kind() {
  return UIDevice::currentDevice().userInterfaceIdiom() == UIUserInterfaceIdiomPad
             ? ScreenKind::Tablet
             : ScreenKind::Phone;
}

/// A text of blanks only cannot be sent.
bool is_blank(const std::string& text) {
  return text.find_first_not_of(" \t\r\n") == text.npos;
}

}  // namespace

// A text that is too long is accepted, too: the user can shorten it on the card; refused, it would
// be lost.
BOOL TweetComposer::set_initial_text(NSString text) {
  if (shown_) return NO;
  initial_text_ = objc::Ref<NSString>::adopt(text.copy());
  if (card_) card_->text().setText(text);
  return YES;
}

void TweetComposer::load_view() {
  const CGRect screen = UIScreen::mainScreen().bounds();
  const auto view = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(screen));
  dim_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(screen));
  dim_->setBackgroundColor(UIColor::blackColor());
  dim_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  view->addSubview(dim_.get());
  card_place_ = composer_place(screen.size, screen_kind());
  card_.emplace(card_place_, "Share"_ns);
  card_->text().setText(initial_text_.get());
  card_->text().setDelegate(self);
  card_->cancel().addTarget(self, "cancelPressed"_sel, UIControlEventTouchUpInside);
  card_->post().addTarget(self, "postPressed"_sel, UIControlEventTouchUpInside);
  view->addSubview(card_->view());
  self.setView(view.get());
  text_changed(card_->text());
}

void TweetComposer::view_will_appear(BOOL animated) {
  super<>("viewWillAppear:"_sel, animated);
  shown_ = true;
}

void TweetComposer::view_will_disappear(BOOL animated) {
  super<>("viewWillDisappear:"_sel, animated);
  card_->text().resignFirstResponder();
}

void TweetComposer::place_off_screen(CGRect place) {
  self.view().setFrame(place);
  dim_->setAlpha(0);
  CGRect above = card_place_;
  above.origin.y = -above.size.height - kBeyondEdge;
  card_->view().setFrame(above);
}

// The keyboard appears together with the card, not after it.
void TweetComposer::place_on_screen(CGRect place) {
  self.view().setFrame(place);
  dim_->setAlpha(kDimAlpha);
  card_->view().setFrame(card_place_);
  card_->text().becomeFirstResponder();
}

void TweetComposer::text_changed(UITextView) {
  card_->show_notice(nil);
  count_is_old_ = true;
  self.view().setNeedsLayout();
}

// Updates the count once per turn, not for each of the thousand characters of a pasted text.
void TweetComposer::view_did_layout() {
  super<>("viewDidLayoutSubviews"_sel);
  if (!std::exchange(count_is_old_, false)) return;
  const NSString text = card_->text().text();
  const auto left = kMostCharacters - static_cast<std::ptrdiff_t>(character_count(text));
  card_->show_characters_left(left);
  card_->post().setEnabled(left >= 0 && !is_blank(uikit::utf8_of(text)));
}

void TweetComposer::cancel() {
  leave(TWTweetComposeViewControllerResultCancelled);
}

void TweetComposer::post() {
  if (leaving_) return;
  card_->text().unmarkText();
  if (hand_over_share(uikit::utf8_of(card_->text().text())) == HandedTo::Failed) {
    card_->show_notice("Not sent. Please try again."_ns);
    return;
  }
  leave(TWTweetComposeViewControllerResultDone);
}

void TweetComposer::leave(Result result) {
  if (std::exchange(leaving_, true)) return;
  if (const UIWindow window = self.view().window())
    hold_ = std::make_unique<uikit::TouchHold>(window);
  card_->text().resignFirstResponder();
  const auto kept = objc::Ref<TWTweetComposeViewController>::retain(self);
  UIView::animateWithDuration(
      kLeavingDuration, objc::block([this] { place_off_screen(self.view().frame()); }),
      objc::block([kept, result](BOOL) { objc::state_of<TweetComposer>(*kept).finish(result); }));
}

void TweetComposer::finish(Result result) {
  hold_.reset();
  // Breaks the cycle with a handler that retains the composer.
  const auto handler = std::exchange(handler_, {});
  handler.get()(result);
  if (self.presentingViewController()) self.dismissViewControllerAnimated(NO, nullptr);
  leaving_ = false;
}

void export_tweet_composer() {
  using Composer = TweetComposer;
  objc::ClassBuilder("TWTweetComposeViewController", "UIViewController")
      .state<Composer>()
      .class_method<&Composer::can_send>("canSendTweet")
      .method<&Composer::set_initial_text>("setInitialText:")
      .method<&Composer::set_completion_handler>("setCompletionHandler:")
      .method<&Composer::presentation_style>("modalPresentationStyle")
      .method<&Composer::load_view>("loadView")
      .method<&Composer::view_will_appear>("viewWillAppear:")
      .method<&Composer::view_will_disappear>("viewWillDisappear:")
      .method<&Composer::view_did_layout>("viewDidLayoutSubviews")
      .method<&Composer::place_off_screen>("_placeOffScreen:")
      .method<&Composer::place_on_screen>("_placeOnScreen:")
      .method<&Composer::text_changed>("textViewDidChange:")
      .method<&Composer::cancel>("cancelPressed")
      .method<&Composer::post>("postPressed")
      .finish();
}

}  // namespace host::social
