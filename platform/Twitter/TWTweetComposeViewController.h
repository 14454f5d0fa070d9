#pragma once

#include "objc/block.h"
#include "platform/Twitter/Twitter.h"
#include "platform/UIKit/UIViewController.h"

enum TWTweetComposeViewControllerResult : NSInteger {
  TWTweetComposeViewControllerResultCancelled,
  TWTweetComposeViewControllerResultDone,
};

/// A composer: the user edits a short text, then sends or cancels it.
struct TWTweetComposeViewController
    : objc::Bound<TWTweetComposeViewController, "TWTweetComposeViewController", UIViewController,
                  kTwitterImage> {
  using Handler = objc::Block<void(TWTweetComposeViewControllerResult)>;

  static BOOL canSendTweet() { return call_class<"canSendTweet", BOOL>(); }
  /// Returns NO once the composer has been shown: from then on the text belongs to the user.
  BOOL setInitialText(NSString text) const { return call<"setInitialText:", BOOL>(text); }
  /// The handler is called once, when the composer ends.
  void setCompletionHandler(Handler handler) const { call<"setCompletionHandler:">(handler); }
};
