#include "host/springboard/home/home_screen.h"

#include <algorithm>
#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/wallpaper.h"
#include "host/springboard/home/dock_ground.h"
#include "host/springboard/icon/folder_icon.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/view/icon_list_view.h"
#include "host/springboard/view/icon_view_map.h"

namespace host::springboard {
namespace {

constexpr CGFloat kDotsHeight = 20;
constexpr CGFloat kOtherDotsAlpha = 0.4;

}  // namespace

HomeScreen::HomeScreen(IconModel& model, objc::Object delegate)
    : model_(model),
      delegate_(delegate),
      grid_(screen_grid()),
      window_(make_view<UIWindow>({{0, 0}, grid_.screen})),
      content_(make_view<UIView>({{0, 0}, grid_.screen})) {
  add_wallpaper();
  window_->addSubview(*content_);
  add_pages();
  add_dots();
  add_dock();
  sync(0);
}

void HomeScreen::add_wallpaper() {
  wallpaper_ = make_view<UIImageView>(window_->bounds());
  wallpaper_->setContentMode(UIViewContentModeScaleAspectFill);
  wallpaper_->setClipsToBounds(YES);
  wallpaper_->setBackgroundColor(UIColor::blackColor());
  window_->addSubview(*wallpaper_);
  show_wallpaper();
}

void HomeScreen::show_wallpaper() {
  const NSString chosen = chosen_wallpaper();
  if (wallpaper_name_ && wallpaper_name_->isEqualToString(chosen)) return;
  wallpaper_name_.reset(chosen);
  wallpaper_->setImage(picture(chosen));
}

void HomeScreen::add_pages() {
  scroll_ = make_view<UIScrollView>(content_->bounds());
  scroll_->setPagingEnabled(YES);
  scroll_->setAlwaysBounceHorizontal(YES);
  scroll_->setShowsHorizontalScrollIndicator(NO);
  scroll_->setShowsVerticalScrollIndicator(NO);
  // An icon must darken as soon as a finger touches it.
  scroll_->setDelaysContentTouches(NO);
  scroll_->setDelegate(delegate_);
  content_->addSubview(*scroll_);
}

void HomeScreen::add_dots() {
  dots_ = make_view<UIPageControl>({0, 0, grid_.screen.width, kDotsHeight});
  dots_->setCenter(grid_.page_dots_centre());
  dots_->setPageIndicatorTintColor(UIColor::colorWithWhite(1, kOtherDotsAlpha));
  dots_->setCurrentPageIndicatorTintColor(UIColor::whiteColor());
  dots_->setUserInteractionEnabled(NO);
  content_->addSubview(*dots_);
}

void HomeScreen::add_dock() {
  auto dock = make_view<UIView>(grid_.dock_frame());
  add_dock_ground(*dock);
  dock_list_ = make_view<SBDockIconListView>(dock->bounds());
  dock->addSubview(*dock_list_);
  content_->addSubview(*dock);
}

void HomeScreen::sync(double duration) {
  sync_page_count();
  const HomeLayout& layout = model_.layout();
  for (std::size_t page = 0; page < pages_.size(); ++page)
    sync_list(*pages_[page], layout.pages()[page], duration);
  sync_list(*dock_list_, layout.dock(), duration);
  remove_stale_views();
}

void HomeScreen::sync_page_count() {
  const std::size_t count = model_.layout().pages().size();
  while (pages_.size() < count) {
    pages_.push_back(make_view<SBIconListView>(grid_.page_frame(pages_.size())));
    scroll_->addSubview(*pages_.back());
  }
  while (pages_.size() > count) {
    pages_.back()->removeFromSuperview();
    pages_.pop_back();
  }
  const CGFloat width = static_cast<CGFloat>(count) * grid_.screen.width;
  scroll_->setContentSize({width, grid_.screen.height});
  dots_->setNumberOfPages(static_cast<NSInteger>(count));
  if (current_page() >= count) scroll_to_page(count - 1, YES);
  pages_scrolled();
}

void HomeScreen::sync_list(SBIconListView view, const HomeLayout::List& list, double duration) {
  const auto icons = NSMutableArray::array();
  for (const Slot& slot : list) {
    const SBIcon icon = model_.icon(slot);
    if (!icon) continue;
    icons.addObject(icon);
    if (slot.is_folder) sync_folder(slot, icon);
    view_for(icon);
  }
  objc::state_of<IconListView>(view).show(icons, duration);
}

void HomeScreen::sync_folder(const Slot& folder, SBIcon icon) {
  const NSArray contents = model_.folder_contents(folder);
  for (const SBIcon inside : contents.of<SBIcon>())
    view_for(inside);
  auto& list = folders_[folder.id];
  if (!list) list = make_view<SBFolderIconListView>({{0, 0}, FolderMetrics(grid_).panel.size});
  objc::state_of<IconListView>(list.get()).show(contents, 0);
  const bool looks_different = objc::state_of<FolderIcon>(icon).update(folder.title, contents);
  if (looks_different) view_for(icon).setIcon(icon);
}

SBIconView HomeScreen::view_for(SBIcon icon) const {
  return view_map().view_for(icon, delegate_);
}

void HomeScreen::remove_stale_views() {
  const HomeLayout& layout = model_.layout();
  view_map().remove_unless(
      [&](SBIcon icon) { return layout.contains(to_string(icon.nodeIdentifier())); });
  std::erase_if(folders_, [&](const auto& entry) {
    if (layout.contains(entry.first)) return false;
    entry.second->removeFromSuperview();
    return true;
  });
  model_.forget_lost_folders();
}

std::size_t HomeScreen::current_page() const {
  const CGFloat page = std::round(scroll_->contentOffset().x / grid_.screen.width);
  return static_cast<std::size_t>(std::max<CGFloat>(page, 0));
}

void HomeScreen::scroll_to_page(std::size_t page, BOOL animated) const {
  const std::size_t last = pages_.empty() ? 0 : pages_.size() - 1;
  const CGFloat x = static_cast<CGFloat>(std::min(page, last)) * grid_.screen.width;
  scroll_->setContentOffset({x, 0}, animated);
}

void HomeScreen::pages_scrolled() const {
  dots_->setCurrentPage(static_cast<NSInteger>(current_page()));
}

SBFolderIconListView HomeScreen::folder_list(const std::string& folder) const {
  const auto found = folders_.find(folder);
  return found == folders_.end() ? SBFolderIconListView() : found->second.get();
}

}  // namespace host::springboard
