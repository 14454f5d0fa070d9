#pragma once

#include <memory>
#include <vector>

#include "host/springboard/switcher/switcher_card.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::springboard {

/// The switcher's cards, side by side; the row stops with one of them in the middle.
class SwitcherRow {
 public:
  /// `delegate` hears of the row's scrolling and is not retained.
  SwitcherRow(UIView parent, objc::Object delegate);
  ~SwitcherRow();
  SwitcherRow(const SwitcherRow&) = delete;
  SwitcherRow& operator=(const SwitcherRow&) = delete;

  void add(const SwitcherCard::Content& content, SwitcherCard::Wishes wishes);
  /// The card flies away, and those behind it move up.
  void throw_away(const std::string& bundle);
  UIScrollView view() const { return scroll_.get(); }
  std::size_t count() const { return cards_.size(); }
  /// Nothing when there is no card of that application.
  const SwitcherCard* card(const std::string& bundle) const;

  void show_card(const std::string& bundle) const;
  /// The row with this card as large as the screen, and just over it.
  void zoom_onto(const std::string& bundle) const;
  void zoom_out() const;
  /// The offset nearest to this one at which a card is in the middle.
  CGFloat stop_near(CGFloat offset) const;

 private:
  CGRect first_frame() const;
  CGFloat pitch() const;
  CGFloat centre_of(std::size_t index) const;
  void update_size() const;

  objc::Ref<UIScrollView> scroll_;
  std::vector<std::unique_ptr<SwitcherCard>> cards_;
  /// On their way out.
  std::vector<std::unique_ptr<SwitcherCard>> thrown_;
  /// Ends with this object: an animation may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
