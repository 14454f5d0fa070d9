#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/MessageUI/MessageUI.h"
#include "platform/UIKit/UINavigationController.h"

enum MFMailComposeResult : int {
  MFMailComposeResultCancelled,
  MFMailComposeResultSaved,
  MFMailComposeResultSent,
  MFMailComposeResultFailed,
};

struct MFMailComposeViewController
    : objc::Bound<MFMailComposeViewController, "MFMailComposeViewController",
                  UINavigationController, kMessageUIImage> {
  static BOOL canSendMail() { return call_class<"canSendMail", BOOL>(); }
  objc::Object mailComposeDelegate() const { return call<"mailComposeDelegate", objc::Object>(); }
  void setMailComposeDelegate(objc::Object delegate) const {
    call<"setMailComposeDelegate:">(delegate);
  }
  void setSubject(NSString subject) const { call<"setSubject:">(subject); }
  void setToRecipients(NSArray recipients) const { call<"setToRecipients:">(recipients); }
  void setMessageBody(NSString body, BOOL is_html) const {
    call<"setMessageBody:isHTML:">(body, is_html);
  }
};

struct MFMailComposeViewControllerDelegate
    : objc::Bound<MFMailComposeViewControllerDelegate, "MFMailComposeViewControllerDelegate",
                  NSObject> {
  void didFinishWithResult(MFMailComposeViewController composer, MFMailComposeResult result,
                           objc::Object error) const {
    call<"mailComposeController:didFinishWithResult:error:">(composer, result, error);
  }
};
