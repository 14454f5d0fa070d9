#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIconListView.h"
#include "platform/SpringBoard/SBIconView.h"

namespace host::springboard {

/// A grid of icon views; the base class is a page of the home screen. It places its icons only on
/// request: an extension that moves an icon's view may leave it where it is.
class IconListView : public objc::Implementation<IconListView, SBIconListView> {
 public:
  using Implementation::Implementation;

  NSArray icons() const { return icons_.get(); }
  /// Takes over the views of these icons, wherever they are, and moves each to its slot with an
  /// animation of `duration` seconds (0: at once). A view from another list starts at its current
  /// position on the screen.
  void show(NSArray icons, double duration);
  CGPoint origin_for_icon_at_index(NSUInteger index) const;
  int location() const { return SBIconLocationHomeScreen; }

 private:
  void take_over(SBIconView view) const;
  void place(SBIconView view, CGPoint origin, double duration) const;

  objc::Ref<NSArray> icons_;
};

void export_icon_list_view();
void export_dock_icon_list_view();
void export_folder_icon_list_view();

}  // namespace host::springboard
