#pragma once

#include "host/springboard/parts/slider.h"
#include "objc/class_builder.h"
#include "platform/Preferences/PSTableCell.h"

namespace host::settings {

struct PrefsVolumeCell : objc::Bound<PrefsVolumeCell, "PrefsVolumeCell", PSTableCell> {};

/// A row with one slider, between the symbols of a silent and a loud speaker.
class VolumeCell : public objc::Implementation<VolumeCell, PrefsVolumeCell> {
 public:
  using Implementation::Implementation;

  void layout_subviews();
  void refresh(PSSpecifier specifier);

 private:
  void build(CGSize size);

  objc::Ref<springboard::SBSurfaceSlider> slider_;
};

void export_volume_cell();

}  // namespace host::settings
