#include "host/springboard/parts/surface_parts.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/model/strings.h"

namespace host::springboard {
namespace {

constexpr CGSize kGrabber{36, 5};
constexpr CGFloat kBehindScreens = 0.12;

}  // namespace

objc::Ref<UIView> add_backdrop(UIView parent, CGRect frame, _UIBackdropViewStyle style) {
  const auto made = _UIBackdropView::alloc().initWithFrame(
      frame, NO, _UIBackdropViewSettings::settingsForStyle(style));
  auto backdrop = objc::Ref<UIView>::adopt(made);
  backdrop->setUserInteractionEnabled(NO);
  parent.addSubview(*backdrop);
  return backdrop;
}

objc::Ref<UIView> add_plate(UIView parent, CGRect frame, UIColor color, CGFloat radius) {
  auto plate = make_view<UIView>(frame);
  plate->setBackgroundColor(color);
  plate->setUserInteractionEnabled(NO);
  if (radius > 0) plate->layer().setCornerRadius(radius);
  parent.addSubview(*plate);
  return plate;
}

objc::Ref<UIImageView> add_wallpaper(UIView parent) {
  auto wallpaper = make_view<UIImageView>(parent.bounds());
  wallpaper->setContentMode(UIViewContentModeScaleAspectFill);
  wallpaper->setClipsToBounds(YES);
  wallpaper->setBackgroundColor(UIColor::blackColor());
  wallpaper->setImage(picture(to_ns(configuration().wallpaper)));
  parent.addSubview(*wallpaper);
  return wallpaper;
}

void add_blurred_wallpaper(UIView parent) {
  add_wallpaper(parent)->setUserInteractionEnabled(YES);
  add_backdrop(parent, parent.bounds(), kDarkBackdrop);
  add_plate(parent, parent.bounds(), UIColor::colorWithWhite(0, kBehindScreens));
}

void add_grabber(UIView parent, CGPoint centre, UIColor color) {
  const CGRect frame{centre.x - kGrabber.width / 2, centre.y - kGrabber.height / 2, kGrabber.width,
                     kGrabber.height};
  add_plate(parent, frame, color, kGrabber.height / 2);
}

objc::Ref<UILabel> add_label(UIView parent, CGRect frame, const TextLook& look) {
  auto label = make_view<UILabel>(frame);
  label->setFont(UIFont::fontWithName(look.font, look.size));
  label->setTextColor(look.color);
  label->setTextAlignment(look.alignment);
  label->setBackgroundColor(UIColor::clearColor());
  label->setUserInteractionEnabled(NO);
  parent.addSubview(*label);
  return label;
}

UIImage glyph(NSString name) {
  return picture(name).imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate);
}

objc::Ref<UIImageView> add_glyph(UIView parent, NSString name, CGRect frame, UIColor color) {
  auto view = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithImage(glyph(name)));
  view->setCenter(frame.centre());
  view->setTintColor(color);
  view->setUserInteractionEnabled(NO);
  parent.addSubview(*view);
  return view;
}

objc::Ref<UIButton> add_glyph_button(UIView parent, NSString name, CGRect frame, UIColor color) {
  auto button = make_view<UIButton>(frame);
  button->setImage(glyph(name), UIControlStateNormal);
  button->setTintColor(color);
  parent.addSubview(*button);
  return button;
}

void show_text(UILabel label, NSString text) {
  const NSString shown = label.text();
  if (shown == text || (shown && text && shown.isEqualToString(text))) return;
  label.setText(text);
}

}  // namespace host::springboard
