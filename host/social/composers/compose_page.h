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

/// Edits a letter: its recipients, the subject of a mail, and the text, with a button to cancel and
/// one to send.
class ComposePage : public objc::Implementation<ComposePage, MFComposePage> {
 public:
  enum class End { Cancelled, Sent, Failed };

  explicit ComposePage(MFComposePage owner) : Implementation(owner) {}

  static objc::Ref<MFComposePage> make(LetterKind kind, std::function<void(End)> on_end);
  /// The letter to show. Once the page is visible, only the user changes it.
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
