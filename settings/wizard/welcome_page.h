#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

namespace sonavue {

/// The wizard's first page: who it is, and a hint spelt letter by letter.
class WelcomePage {
 public:
  /// The mark that points the way, and the twelve letters behind it.
  static constexpr int kHintParts = 13;

  /// A view as large as `bounds`. The labels are kept until `release_labels`.
  [[nodiscard]] objc::Ref<UIView> build(CGRect bounds);

  /// Lets every part of the hint fade and come back, one a little later than the other. `at_end`
  /// is called when the last is back.
  void wave(objc::Block<void(BOOL)> at_end) const;

  void release_labels();

 private:
  void add_letters(UIView page, CGRect bounds);

  objc::Ref<UILabel> hello_;
  objc::Ref<UILabel> hint_[kHintParts];
};

}  // namespace sonavue
