#include "tweak/playback/share.h"

#include "platform/Twitter/TWTweetComposeViewController.h"
#include "tweak/globals.h"

namespace sonavue {
namespace {

NSString text_of(UILabel label) {
  const NSString text = label.text();
  return text ? text : ""_ns;
}

// A missing word leaves its space behind: the text is never trimmed.
NSString share_text() {
  return "#NowPlaying "_ns.stringByAppendingString(text_of(title))
      .stringByAppendingString(" "_ns)
      .stringByAppendingString(text_of(artist))
      .stringByAppendingString(" with #Sonavue2"_ns);
}

}  // namespace

void tweet(SpringBoard) {
  if (!art.image()) return;
  const auto composer = TWTweetComposeViewController::alloc().init();
  composer.setCompletionHandler(
      objc::block([](TWTweetComposeViewControllerResult) { window.setRootViewController(nil); }));
  composer.setInitialText(share_text());
  // The window keeps this one until the composer is done.
  const auto presenter = UIViewController::alloc().init();
  window.setRootViewController(presenter);
  presenter.presentModalViewController(composer, YES);
  composer.release();
  presenter.release();
}

}  // namespace sonavue
