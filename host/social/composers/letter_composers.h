#pragma once

#include "host/social/composers/compose_page.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/MessageUI/MFMessageComposeViewController.h"

namespace host::social {

/// Lets the user edit and send a mail. The delegate receives the result and dismisses the composer.
class MailComposer : public objc::Implementation<MailComposer, MFMailComposeViewController> {
 public:
  explicit MailComposer(MFMailComposeViewController owner) : Implementation(owner) {}

  /// Always YES: without a desktop, mail goes to the outbox.
  static BOOL can_send(objc::Object) { return YES; }
  MFMailComposeViewController init();
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  void set_subject(NSString subject);
  void set_recipients(NSArray recipients);
  void set_body(NSString body, BOOL is_html);

 private:
  Letter& letter() { return objc::state_of<ComposePage>(page_.get()).letter(); }
  void ended(ComposePage::End end) const;

  objc::Ref<MFComposePage> page_;
  // Not retained, as on the platform.
  objc::Object delegate_;
};

/// The same for a text message.
class MessageComposer
    : public objc::Implementation<MessageComposer, MFMessageComposeViewController> {
 public:
  explicit MessageComposer(MFMessageComposeViewController owner) : Implementation(owner) {}

  static BOOL can_send(objc::Object) { return YES; }
  MFMessageComposeViewController init();
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  void set_recipients(NSArray recipients);
  void set_body(NSString body);

 private:
  Letter& letter() { return objc::state_of<ComposePage>(page_.get()).letter(); }
  void ended(ComposePage::End end) const;

  objc::Ref<MFComposePage> page_;
  objc::Object delegate_;
};

void export_letter_composers();

}  // namespace host::social
