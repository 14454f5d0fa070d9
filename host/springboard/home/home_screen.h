#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/springboard/icon/icon_model.h"
#include "host/springboard/model/grid_metrics.h"
#include "platform/SpringBoard/SBDockIconListView.h"
#include "platform/SpringBoard/SBFolderIconListView.h"
#include "platform/SpringBoard/SBIconView.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIPageControl.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The home screen's window: wallpaper, pages of icons, page dots and dock.
class HomeScreen {
 public:
  /// `delegate` receives the icons' touches and the pages' scrolling; it is not retained.
  HomeScreen(IconModel& model, objc::Object delegate);

  UIWindow window() const { return window_.get(); }
  /// Everything on top of the wallpaper: pages, dots and dock.
  UIView content() const { return content_.get(); }
  const GridMetrics& grid() const { return grid_; }

  /// Shows the currently chosen wallpaper.
  void show_wallpaper();
  /// Updates the views from the model; icons move to their new slots within `duration` seconds.
  void sync(double duration);

  std::size_t current_page() const;
  void scroll_to_page(std::size_t page, BOOL animated) const;
  void set_paging_enabled(BOOL enabled) const { scroll_->setScrollEnabled(enabled); }
  /// Updates the page dots after the pages have scrolled.
  void pages_scrolled() const;

  std::size_t page_count() const { return pages_.size(); }
  SBIconListView page_list(std::size_t page) const { return pages_.at(page).get(); }
  SBDockIconListView dock_list() const { return dock_list_.get(); }
  /// Nil when there is no such folder.
  SBFolderIconListView folder_list(const std::string& folder) const;

 private:
  void add_wallpaper();
  void add_pages();
  void add_dots();
  void add_dock();
  void sync_page_count();
  void sync_list(SBIconListView view, const HomeLayout::List& list, double duration);
  void sync_folder(const Slot& folder, SBIcon icon);
  SBIconView view_for(SBIcon icon) const;
  void remove_stale_views();

  IconModel& model_;
  objc::Object delegate_;
  GridMetrics grid_;
  objc::Ref<UIWindow> window_;
  objc::Ref<UIImageView> wallpaper_;
  objc::Ref<NSString> wallpaper_name_;
  objc::Ref<UIView> content_;
  objc::Ref<UIScrollView> scroll_;
  objc::Ref<UIPageControl> dots_;
  objc::Ref<SBDockIconListView> dock_list_;
  std::vector<objc::Ref<SBIconListView>> pages_;
  std::map<std::string, objc::Ref<SBFolderIconListView>> folders_;
};

}  // namespace host::springboard
