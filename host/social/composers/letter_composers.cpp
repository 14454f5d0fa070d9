#include "host/social/composers/letter_composers.h"

namespace host::social {
namespace {

std::string text_of(NSString text) {
  const char* bytes = text.UTF8String();
  return bytes ? bytes : "";
}

std::vector<std::string> listed(NSArray texts) {
  std::vector<std::string> list;
  if (!texts) return list;
  for (const NSString text : texts.of<NSString>())
    list.push_back(text_of(text));
  return list;
}

}  // namespace

MFMailComposeViewController MailComposer::init() {
  page_ = ComposePage::make(LetterKind::Mail, [this](ComposePage::End end) { ended(end); });
  if (!self.initWithRootViewController(page_.get())) return nil;
  return self;
}

void MailComposer::set_subject(NSString subject) {
  letter().subject = text_of(subject);
}

void MailComposer::set_recipients(NSArray recipients) {
  letter().recipients = listed(recipients);
}

void MailComposer::set_body(NSString body, BOOL) {
  letter().body = text_of(body);
}

void MailComposer::ended(ComposePage::End end) const {
  const auto delegate = objc::cast<MFMailComposeViewControllerDelegate>(delegate_);
  if (!delegate.respondsToSelector("mailComposeController:didFinishWithResult:error:"_sel))
    return self.dismissViewControllerAnimated(YES, nullptr);
  MFMailComposeResult result = MFMailComposeResultCancelled;
  if (end == ComposePage::End::Sent) result = MFMailComposeResultSent;
  if (end == ComposePage::End::Failed) result = MFMailComposeResultFailed;
  delegate.didFinishWithResult(self, result, nil);
}

MFMessageComposeViewController MessageComposer::init() {
  page_ = ComposePage::make(LetterKind::Message, [this](ComposePage::End end) { ended(end); });
  if (!self.initWithRootViewController(page_.get())) return nil;
  return self;
}

void MessageComposer::set_recipients(NSArray recipients) {
  letter().recipients = listed(recipients);
}

void MessageComposer::set_body(NSString body) {
  letter().body = text_of(body);
}

void MessageComposer::ended(ComposePage::End end) const {
  const auto delegate = objc::cast<MFMessageComposeViewControllerDelegate>(delegate_);
  if (!delegate.respondsToSelector("messageComposeViewController:didFinishWithResult:"_sel))
    return self.dismissViewControllerAnimated(YES, nullptr);
  MessageComposeResult result = MessageComposeResultCancelled;
  if (end == ComposePage::End::Sent) result = MessageComposeResultSent;
  if (end == ComposePage::End::Failed) result = MessageComposeResultFailed;
  delegate.didFinishWithResult(self, result);
}

void export_letter_composers() {
  objc::ClassBuilder("MFMailComposeViewController", "UINavigationController")
      .state<MailComposer>()
      .class_method<&MailComposer::can_send>("canSendMail")
      .method<&MailComposer::init>("init")
      .method<&MailComposer::delegate>("mailComposeDelegate")
      .method<&MailComposer::set_delegate>("setMailComposeDelegate:")
      .method<&MailComposer::set_subject>("setSubject:")
      .method<&MailComposer::set_recipients>("setToRecipients:")
      .method<&MailComposer::set_body>("setMessageBody:isHTML:")
      .finish();
  objc::ClassBuilder("MFMessageComposeViewController", "UINavigationController")
      .state<MessageComposer>()
      .class_method<&MessageComposer::can_send>("canSendText")
      .method<&MessageComposer::init>("init")
      .method<&MessageComposer::delegate>("messageComposeDelegate")
      .method<&MessageComposer::set_delegate>("setMessageComposeDelegate:")
      .method<&MessageComposer::set_recipients>("setRecipients:")
      .method<&MessageComposer::set_body>("setBody:")
      .finish();
}

}  // namespace host::social
