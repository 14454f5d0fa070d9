#pragma once

#include <memory>
#include <vector>

#include "host/springboard/switcher/switcher_card.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::springboard {

/// The switcher's cards, side by side. Scrolling stops with one of them in the middle.
class SwitcherRow {
 public:
  /// `delegate` receives the row's scrolling and is not retained.
  SwitcherRow(UIView parent, objc::Object delegate);
  ~SwitcherRow();
  SwitcherRow(const SwitcherRow&) = delete;
  SwitcherRow& operator=(const SwitcherRow&) = delete;

  void add(const SwitcherCard::Content& content, SwitcherCard::Callbacks callbacks);
  /// Makes the card fly away; those behind it close the gap.
  void throw_away(const std::string& bundle);
  UIScrollView view() const { return scroll_.get(); }
  std::size_t count() const { return cards_.size(); }
  /// Null when there is no card for the application.
  const SwitcherCard* card(const std::string& bundle) const;

  void show_card(const std::string& bundle) const;
  /// Scales and moves the row until this card is as large as the screen and exactly covers it.
  void zoom_onto(const std::string& bundle) const;
  void zoom_out() const;
  /// Returns the offset nearest to `offset` that has a card in the middle.
  CGFloat stop_near(CGFloat offset) const;

 private:
  CGRect first_frame() const;
  CGFloat pitch() const;
  CGFloat centre_of(std::size_t index) const;
  void update_size() const;

  objc::Ref<UIScrollView> scroll_;
  std::vector<std::unique_ptr<SwitcherCard>> cards_;
  /// The cards that are flying out.
  std::vector<std::unique_ptr<SwitcherCard>> thrown_;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
