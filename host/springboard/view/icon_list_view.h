#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBIconListView.h"
#include "platform/SpringBoard/SBIconView.h"

namespace host::springboard {

/// A grid of icon views, and by itself a page of the home screen. It places its icons when told to
/// and never on its own, so that whoever moves an icon's view may keep it where it is.
class IconListView : public objc::Implementation<IconListView, SBIconListView> {
 public:
  using Implementation::Implementation;

  NSArray icons() const { return icons_.get(); }
  /// Takes over the views of these icons, from wherever they are, and sends each to its slot by an
  /// animation of that many seconds (0: at once). A view that comes from another list starts from
  /// where it is seen.
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
