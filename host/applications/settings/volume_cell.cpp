#include "host/applications/settings/volume_cell.h"

#include "host/preferences/specifier.h"
#include "host/springboard/common/pictures.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UIImageView.h"

namespace host::settings {
namespace {

constexpr CGFloat kCellMargin = 15;
constexpr CGFloat kGlyphRoom = 24;
constexpr CGFloat kSliderGap = 8;

void add_glyph(UIView cell, NSString name, CGFloat middle_x) {
  const UIImage picture = springboard::picture(name);
  if (!picture) return;
  const auto view = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithImage(
      picture.imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate)));
  view->setTintColor(UIColor::grayColor());
  view->setCenter({middle_x, cell.bounds().size.height / 2});
  cell.addSubview(view.get());
}

}  // namespace

void VolumeCell::build(CGSize size) {
  const CGFloat left = kCellMargin + kGlyphRoom + kSliderGap;
  slider_ = springboard::Slider::make(
      {left, 0, size.width - 2 * left, size.height},
      {objc::Ref<UIColor>::retain(self.tintColor()),
       objc::Ref<UIColor>::retain(UIColor::colorWithWhite(0.72, 1))},
      [this](double value) {
        preferences::state_of(self.specifier()).set_value(NSNumber::numberWithDouble(value));
      });
  self.addSubview(slider_.get());
  add_glyph(self, "surface-speaker"_ns, kCellMargin + kGlyphRoom / 2);
  add_glyph(self, "surface-speaker-loud"_ns, size.width - kCellMargin - kGlyphRoom / 2);
  self.refreshCellContentsWithSpecifier(self.specifier());
}

void VolumeCell::layout_subviews() {
  super<>("layoutSubviews"_sel);
  if (!slider_) build(self.bounds().size);
}

void VolumeCell::refresh(PSSpecifier specifier) {
  super<>("refreshCellContentsWithSpecifier:"_sel, specifier);
  if (!slider_ || !specifier) return;
  const auto value = objc::cast<NSNumber>(preferences::state_of(specifier).value());
  objc::state_of<springboard::Slider>(slider_.get()).show(value.doubleValue());
}

void export_volume_cell() {
  objc::ClassBuilder("PrefsVolumeCell", "PSTableCell")
      .state<VolumeCell>()
      .method<&VolumeCell::layout_subviews>("layoutSubviews")
      .method<&VolumeCell::refresh>("refreshCellContentsWithSpecifier:")
      .finish();
}

}  // namespace host::settings
