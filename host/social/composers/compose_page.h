#pragma once

#include <functional>

#include "host/social/delivery/letter.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UITextView.h"

namespace host::social {

struct MFComposePage : objc::Bound<MFComposePage, "MFComposePage", UIViewController> {};

/// A letter before it is sent: to whom, in a mail about what, and the text, between a button that
/// gives it up and one that sends it.
class ComposePage : public objc::Implementation<ComposePage, MFComposePage> {
 public:
  enum class End { Cancelled, Sent, Failed };

  explicit ComposePage(MFComposePage owner) : Implementation(owner) {}

  static objc::Ref<MFComposePage> make(LetterKind kind, std::function<void(End)> on_end);
  /// What is shown; it is the user's once it is.
  Letter& letter() { return letter_; }

  void view_did_load();
  void view_did_layout_subviews();
  void cancel();
  void send();

 private:
  CGFloat add_row(CGFloat top, NSString name, UIView contents);
  void add_line(CGFloat top);
  void end(End end);

  Letter letter_;
  std::function<void(End)> on_end_;
  objc::Ref<UITextField> subject_;
  objc::Ref<UITextView> body_;
  CGFloat body_top_ = 0;
};

void export_compose_page();

}  // namespace host::social
