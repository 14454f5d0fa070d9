#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UITextView.h"

namespace host::social {

/// Tags of a card's parts, for finding them in its view.
enum ComposerTag : NSInteger { kCancelTag = 1, kPostTag, kTextTag, kCountTag, kNoticeTag };

/// The card of a composer: a bar with Cancel, a title and Post, then the text, then the number of
/// characters left.
class ComposerCard {
 public:
  ComposerCard(CGRect frame, NSString title);

  UIView view() const { return view_.get(); }
  UIButton cancel() const { return cancel_.get(); }
  UIButton post() const { return post_.get(); }
  UITextView text() const { return text_.get(); }

  void show_characters_left(std::ptrdiff_t left);
  /// Shows an error in one line beside the count; nil removes it.
  void show_notice(NSString notice);

 private:
  void add_bar(NSString title);
  void add_text();
  void add_footer();
  void add(UIView view) const { view_->addSubview(view); }

  objc::Ref<UIView> view_;
  objc::Ref<UIButton> cancel_;
  objc::Ref<UIButton> post_;
  objc::Ref<UITextView> text_;
  objc::Ref<UILabel> count_;
  objc::Ref<UILabel> notice_;
};

}  // namespace host::social
