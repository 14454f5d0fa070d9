#pragma once

#include "objc/block.h"
#include "platform/Twitter/Twitter.h"
#include "platform/UIKit/UIViewController.h"

enum TWTweetComposeViewControllerResult : NSInteger {
  TWTweetComposeViewControllerResultCancelled,
  TWTweetComposeViewControllerResultDone,
};

/// A short text that is shown for editing and then sent or cancelled.
struct TWTweetComposeViewController
    : objc::Bound<TWTweetComposeViewController, "TWTweetComposeViewController", UIViewController,
                  kTwitterImage> {
  using Handler = objc::Block<void(TWTweetComposeViewControllerResult)>;

  static BOOL canSendTweet() { return call_class<"canSendTweet", BOOL>(); }
  /// NO once the composer has been shown: from then on the text is the user's.
  BOOL setInitialText(NSString text) const { return call<"setInitialText:", BOOL>(text); }
  /// Called once, at the end.
  void setCompletionHandler(Handler handler) const { call<"setCompletionHandler:">(handler); }
};
