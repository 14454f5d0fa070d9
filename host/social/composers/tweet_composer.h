#pragma once

#include <memory>
#include <optional>

#include "host/social/composers/composer_card.h"
#include "host/uikit/view/touch_hold.h"
#include "objc/class_builder.h"
#include "platform/Twitter/TWTweetComposeViewController.h"

namespace host::social {

/// Lets the user edit a short text on a card, and post or cancel it. The screen behind is dimmed
/// and takes no touches meanwhile.
///
/// At the end the card leaves first, then the handler is called while the composer is still
/// presented, then the composer dismisses itself. A handler may therefore dismiss it, clear its
/// window or do nothing, and the user sees the same in each case.
class TweetComposer : public objc::Implementation<TweetComposer, TWTweetComposeViewController> {
 public:
  using Implementation::Implementation;
  using Result = TWTweetComposeViewControllerResult;
  using Handler = TWTweetComposeViewController::Handler;

  /// Always YES: without a desktop, the text goes to the outbox.
  static BOOL can_send(objc::Object) { return YES; }
  BOOL set_initial_text(NSString text);
  void set_completion_handler(Handler handler) {
    handler_ = objc::OwnedBlock<void(Result)>(handler);
  }

  /// The card keeps the page behind it visible, which does not disappear.
  UIModalPresentationStyle presentation_style() const { return UIModalPresentationOverFullScreen; }
  void load_view();
  void view_will_appear(BOOL animated);
  void view_will_disappear(BOOL animated);
  void place_on_screen(CGRect place);
  void place_off_screen(CGRect place);

  void text_changed(UITextView view);
  void view_did_layout();
  void cancel();
  void post();

 private:
  void leave(Result result);
  void finish(Result result);

  objc::Ref<NSString> initial_text_;
  objc::OwnedBlock<void(Result)> handler_;
  std::optional<ComposerCard> card_;
  objc::Ref<UIView> dim_;
  CGRect card_place_;
  bool shown_ = false;
  bool leaving_ = false;
  /// Blocks touches behind the card while it leaves.
  std::unique_ptr<uikit::TouchHold> hold_;
  bool count_is_old_ = true;
};

void export_tweet_composer();

}  // namespace host::social
