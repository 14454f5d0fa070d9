#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/MessageUI/MessageUI.h"
#include "platform/UIKit/UINavigationController.h"

enum MessageComposeResult : int {
  MessageComposeResultCancelled,
  MessageComposeResultSent,
  MessageComposeResultFailed,
};

struct MFMessageComposeViewController
    : objc::Bound<MFMessageComposeViewController, "MFMessageComposeViewController",
                  UINavigationController, kMessageUIImage> {
  static BOOL canSendText() { return call_class<"canSendText", BOOL>(); }
  objc::Object messageComposeDelegate() const {
    return call<"messageComposeDelegate", objc::Object>();
  }
  void setMessageComposeDelegate(objc::Object delegate) const {
    call<"setMessageComposeDelegate:">(delegate);
  }
  void setRecipients(NSArray recipients) const { call<"setRecipients:">(recipients); }
  void setBody(NSString body) const { call<"setBody:">(body); }
};

struct MFMessageComposeViewControllerDelegate
    : objc::Bound<MFMessageComposeViewControllerDelegate, "MFMessageComposeViewControllerDelegate",
                  NSObject> {
  void didFinishWithResult(MFMessageComposeViewController composer,
                           MessageComposeResult result) const {
    call<"messageComposeViewController:didFinishWithResult:">(composer, result);
  }
};
