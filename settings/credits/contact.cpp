#include "settings/credits/contact.h"

#include "objc/ref.h"
#include "platform/Foundation/NSURL.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/MessageUI/MFMessageComposeViewController.h"
#include "platform/UIKit/UIApplication.h"

namespace sonavue {
namespace {

bool can_open(NSString address) {
  return UIApplication::sharedApplication().canOpenURL(NSURL::URLWithString(address));
}

void open(NSString address) {
  UIApplication::sharedApplication().openURL(NSURL::URLWithString(address));
}

}  // namespace

void write_mail(const Author& author, PSTableCell cell, UIViewController card) {
  const auto composer = objc::adopt(MFMailComposeViewController::alloc().init());
  if (!composer) return;
  composer->setMailComposeDelegate(cell);
  composer->setSubject("Sonavue"_ns);
  composer->setMessageBody(""_ns, NO);
  composer->setToRecipients(NSArray::arrayWithObject(as_text(author.mail)));
  card.presentViewController(composer, YES, nullptr);
}

void write_message(const Author& author, PSTableCell cell, UIViewController card) {
  if (!MFMessageComposeViewController::canSendText()) return;
  const auto composer = objc::adopt(MFMessageComposeViewController::alloc().init());
  composer->setMessageComposeDelegate(cell);
  composer->setRecipients(NSArray::arrayWithObject(as_text(author.number)));
  composer->setBody("I'm using Sonavue"_ns);
  card.presentViewController(composer, YES, nullptr);
}

void follow(const Author& author) {
  struct Reader {
    NSString scheme;
    NSString address;
  };
  const Reader readers[] = {{"tweetbot:"_ns, "tweetbot:///user_profile/"_ns},
                            {"tweetings:"_ns, "tweetings:///user?screen_name="_ns},
                            {"twitter:"_ns, "twitter://user?screen_name="_ns}};
  const NSString handle = as_text(author.handle);
  for (const Reader& reader : readers) {
    if (can_open(reader.scheme)) return open(reader.address.stringByAppendingString(handle));
  }
  open("https://social.example.org/intent/follow?screen_name="_ns.stringByAppendingString(handle));
}

void show_package(const Package& package) {
  const NSString address =
      "cydia://package/"_ns.stringByAppendingString(as_text(package.identifier));
  if (can_open(address)) open(address);
}

}  // namespace sonavue
