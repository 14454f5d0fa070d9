#include "tweak/share/share.h"

#include "objc/ref.h"
#include "platform/Twitter/TWTweetComposeViewController.h"
#include "tweak/Sonavue2.h"

namespace sonavue {
namespace {

NSString text_of(UILabel label) {
  const NSString text = label.text();
  return text ? text : ""_ns;
}

// A missing title or artist still leaves its space: the text is never trimmed.
NSString share_text() {
  return "#NowPlaying "_ns.stringByAppendingString(text_of(title))
      .stringByAppendingString(" "_ns)
      .stringByAppendingString(text_of(artist))
      .stringByAppendingString(" with #Sonavue2"_ns);
}

void composer_has_ended(TWTweetComposeViewControllerResult) {
  window.setRootViewController(nil);
}

}  // namespace

void tweet(SpringBoard) {
  // A second tap while the composer is being shown.
  if (window.rootViewController()) return;
  if (!art.image()) return;
  const auto composer = objc::adopt(TWTweetComposeViewController::alloc().init());
  if (!composer) return;
  composer->setCompletionHandler(
      objc::block([](TWTweetComposeViewControllerResult how) { composer_has_ended(how); }));
  composer->setInitialText(share_text());
  // The window retains the presenter until the composer has ended.
  const auto presenter = objc::adopt(UIViewController::alloc().init());
  window.setRootViewController(presenter);
  presenter->presentModalViewController(composer, YES);
}

// Dismissing a composer in code does not call its completion handler.
void dismiss_composer() {
  const UIViewController presenter = window.rootViewController();
  if (!presenter) return;
  presenter.dismissViewControllerAnimated(NO, nullptr);
  composer_has_ended(TWTweetComposeViewControllerResultCancelled);
}

}  // namespace sonavue
