#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

namespace sonavue {

/// The wizard's first page: logo, title, a welcome text, and a hint that is animated letter by
/// letter.
class WelcomePage {
 public:
  /// The mark that points the way, and the twelve letters after it.
  static constexpr int kHintParts = 13;

  /// Makes the page, of the size of `bounds`. Retains the labels until `release_labels`.
  [[nodiscard]] objc::Ref<UIView> build(CGRect bounds);

  /// Fades each part of the hint out and in again, one slightly later than the other. Calls
  /// `at_end` when the last is back.
  void wave(objc::Block<void(BOOL)> at_end) const;

  void release_labels();

 private:
  void add_letters(UIView page, CGRect bounds);

  objc::Ref<UILabel> hello_;
  objc::Ref<UILabel> hint_[kHintParts];
};

}  // namespace sonavue
