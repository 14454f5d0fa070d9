#include "host/applications/settings/wallpaper_page.h"

#include "host/activator/page/page_look.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/wallpaper.h"
#include "platform/UIKit/UIImageView.h"

namespace host::settings {
namespace {

constexpr std::size_t kInARow = 2;
constexpr CGFloat kPageMargin = 20;
constexpr CGFloat kThumbnailGap = 15;
constexpr CGFloat kThumbnailCorner = 4;
constexpr CGFloat kEdge = 3;

}  // namespace

void WallpaperPage::view_did_load() {
  super<>("viewDidLoad"_sel);
  const UIView view = self.view();
  view.setBackgroundColor(activator::ground_color());
  scroll_ = objc::Ref<UIScrollView>::adopt(UIScrollView::alloc().initWithFrame(view.bounds()));
  scroll_->setAlwaysBounceVertical(YES);
  scroll_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  view.addSubview(scroll_.get());
  std::size_t index = 0;
  for (const NSString name : springboard::wallpaper_names().of<NSString>())
    add_tile(index++, name);
  if (!tiles_.empty())
    scroll_->setContentSize(
        {view.bounds().size.width, CGRect(tiles_.back()->frame()).max_y() + kPageMargin});
  show_choice();
}

void WallpaperPage::add_tile(std::size_t index, NSString name) {
  const CGSize screen = UIScreen::mainScreen().bounds().size;
  const CGFloat room = self.view().bounds().size.width - 2 * kPageMargin;
  const CGFloat width = (room - (kInARow - 1) * kThumbnailGap) / kInARow;
  const CGFloat height = width * screen.height / screen.width;
  const auto column = static_cast<CGFloat>(index % kInARow);
  const auto row = static_cast<CGFloat>(index / kInARow);
  const CGRect frame{kPageMargin + column * (width + kThumbnailGap),
                     kPageMargin + row * (height + kThumbnailGap), width, height};
  const auto tile = objc::Ref<UIImageView>::adopt(
      objc::cast<UIImageView>(UIImageView::alloc().initWithFrame(frame)));
  tile->setImage(springboard::picture(name));
  tile->setContentMode(UIViewContentModeScaleAspectFill);
  tile->setClipsToBounds(YES);
  tile->layer().setCornerRadius(kThumbnailCorner);
  tile->layer().setBorderColor(tile->tintColor().CGColor());
  tile->setUserInteractionEnabled(YES);
  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "tileTapped:"_sel);
  tile->addGestureRecognizer(tap);
  tap.release();
  scroll_->addSubview(tile.get());
  names_.push_back(objc::Ref<NSString>::retain(name));
  tiles_.push_back(objc::Ref<UIView>::retain(tile.get()));
}

void WallpaperPage::tapped(UITapGestureRecognizer tap) {
  for (std::size_t index = 0; index < tiles_.size(); ++index)
    if (tiles_[index].get() == tap.view()) springboard::choose_wallpaper(names_[index].get());
  show_choice();
}

void WallpaperPage::show_choice() const {
  const NSString chosen = springboard::chosen_wallpaper();
  for (std::size_t index = 0; index < tiles_.size(); ++index) {
    const bool is_chosen = names_[index]->isEqualToString(chosen);
    tiles_[index]->layer().setBorderWidth(is_chosen ? kEdge : 0);
  }
}

void export_wallpaper_page() {
  objc::ClassBuilder("PrefsWallpaperController", "UIViewController")
      .state<WallpaperPage>()
      .method<&WallpaperPage::view_did_load>("viewDidLoad")
      .method<&WallpaperPage::tapped>("tileTapped:")
      .finish();
}

}  // namespace host::settings
