#pragma once

#include <map>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"

namespace host::uikit {

/// Shows an image, a title, or both, depending on the control's state.
class Button : public objc::Implementation<Button, UIButton> {
 public:
  explicit Button(UIButton owner) : Implementation(owner) {}

  static UIButton with_type(objc::Object cls, UIButtonType type);
  UIButtonType type() const { return type_; }

  UIImage image_for_state(UIControlState state) const { return found(images_, state); }
  void set_image(UIImage image, UIControlState state);
  UIImage background_image_for_state(UIControlState state) const {
    return found(background_images_, state);
  }
  void set_background_image(UIImage image, UIControlState state);
  NSString title_for_state(UIControlState state) const { return found(titles_, state); }
  void set_title(NSString title, UIControlState state);
  UIColor title_color_for_state(UIControlState state) const;
  void set_title_color(UIColor color, UIControlState state);
  NSString current_title() const;
  UIColor current_title_color() const;
  UIImage current_image() const;
  UILabel title_label();
  UIImageView image_view();

  BOOL adjusts_when_highlighted() const { return adjusts_when_highlighted_; }
  void set_adjusts_when_highlighted(BOOL adjusts) { adjusts_when_highlighted_ = adjusts; }
  BOOL adjusts_when_disabled() const { return adjusts_when_disabled_; }
  void set_adjusts_when_disabled(BOOL adjusts) { adjusts_when_disabled_ = adjusts; }
  UIEdgeInsets content_insets() const { return content_insets_; }
  void set_content_insets(UIEdgeInsets insets);
  UIEdgeInsets image_insets() const { return image_insets_; }
  void set_image_insets(UIEdgeInsets insets);
  UIEdgeInsets title_insets() const { return title_insets_; }
  void set_title_insets(UIEdgeInsets insets);
  CGRect image_rect(CGRect content);
  CGRect title_rect(CGRect content);

  void set_highlighted(BOOL highlighted);
  void set_enabled(BOOL enabled);
  void set_selected(BOOL selected);
  void tint_color_did_change();
  void layout_subviews();
  CGSize size_that_fits(CGSize size);
  CGSize intrinsic_content_size();

 private:
  template <class T>
  using ByState = std::map<UIControlState, objc::Ref<T>>;

  template <class T>
  static T found(const ByState<T>& values, UIControlState state) {
    const auto own = values.find(state);
    if (own != values.end() && own->second) return own->second.get();
    const auto normal = values.find(UIControlStateNormal);
    return normal == values.end() ? T() : normal->second.get();
  }

  void update();
  void update_dimming();
  bool is_system() const { return type_ != UIButtonTypeCustom; }
  CGSize image_size() const { return self.currentImage().size(); }
  CGSize title_size();
  CGFloat content_left(CGRect content);

  UIButtonType type_ = UIButtonTypeCustom;
  ByState<UIImage> images_;
  ByState<UIImage> background_images_;
  ByState<NSString> titles_;
  ByState<UIColor> title_colors_;
  objc::Ref<UIImageView> image_view_;
  objc::Ref<UIImageView> background_view_;
  objc::Ref<UILabel> title_label_;
  UIEdgeInsets content_insets_;
  UIEdgeInsets image_insets_;
  UIEdgeInsets title_insets_;
  BOOL adjusts_when_highlighted_ = YES;
  BOOL adjusts_when_disabled_ = YES;
};

void export_button();

}  // namespace host::uikit
