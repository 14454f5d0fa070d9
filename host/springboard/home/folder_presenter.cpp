#include "host/springboard/home/folder_presenter.h"

#include "host/springboard/common/make_view.h"
#include "host/springboard/view/icon_view.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::springboard {
namespace {

constexpr double kFolderOpening = 0.35;
constexpr double kFolderClosing = 0.3;
constexpr CGFloat kPanelRadius = 22;
constexpr CGFloat kPanelAlpha = 0.32;
constexpr CGFloat kDimming = 0.3;
constexpr CGFloat kFolderTitleSize = 34;
constexpr CGFloat kFolderTitleHeight = 44;
constexpr CGFloat kTitleGap = 14;

}  // namespace

FolderPresenter::FolderPresenter(HomeScreen& home, objc::Object background_target)
    : home_(home), background_target_(background_target), metrics_(home.grid()) {}

FolderPresenter::~FolderPresenter() {
  take_down();
}

void FolderPresenter::open(const std::string& folder, NSString title, SBIconView icon_view) {
  if (panel_) take_down();
  folder_ = folder;
  list_.reset(home_.folder_list(folder));
  icon_frame_ = icon_view.convertRectToView(objc::state_of<IconView>(icon_view).image_frame(),
                                            home_.window());
  build(title);
  const UIView overlay = *overlay_, panel = *panel_, content = home_.content();
  overlay.setAlpha(0);
  panel.setTransform(transform_onto_icon());
  UIView::animateWithDuration(kFolderOpening, objc::block([=] {
                                overlay.setAlpha(1);
                                panel.setTransform(CGAffineTransform());
                                content.setAlpha(0);
                              }));
}

void FolderPresenter::close(Motion motion) {
  if (!is_open()) return;
  folder_.clear();
  closing_ = true;
  const UIView overlay = *overlay_, panel = *panel_, content = home_.content();
  if (motion == Motion::kAtOnce) {
    content.setAlpha(1);
    take_down();
    return;
  }
  overlay.setUserInteractionEnabled(NO);
  const CGAffineTransform onto_icon = transform_onto_icon();
  // Another folder may be open by the time this animation ends.
  const auto closed = objc::block([this, kept = overlay_, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && kept.get() == overlay_.get()) take_down();
  });
  UIView::animateWithDuration(kFolderClosing, objc::block([=] {
                                overlay.setAlpha(0);
                                panel.setTransform(onto_icon);
                                content.setAlpha(1);
                              }),
                              closed);
}

void FolderPresenter::build(NSString title) {
  closing_ = false;
  overlay_ = make_view<UIView>(home_.window().bounds());
  home_.window().addSubview(*overlay_);
  add_background();
  add_title(title);
  panel_ = make_view<UIView>(metrics_.panel);
  panel_->setBackgroundColor(UIColor::colorWithWhite(1, kPanelAlpha));
  panel_->layer().setCornerRadius(kPanelRadius);
  overlay_->addSubview(*panel_);
  panel_->addSubview(*list_);
}

void FolderPresenter::add_background() {
  // A sibling of the panel, not its parent: a tap on an icon inside must not count as a tap on it.
  auto background = make_view<UIView>(overlay_->bounds());
  background->setBackgroundColor(UIColor::colorWithWhite(0, kDimming));
  auto tap =
      objc::Ref<UITapGestureRecognizer>::adopt(UITapGestureRecognizer::alloc().initWithTarget(
          background_target_, "folderBackgroundTapped:"_sel));
  background->addGestureRecognizer(*tap);
  overlay_->addSubview(*background);
}

void FolderPresenter::add_title(NSString title) {
  const CGFloat top = metrics_.panel.min_y() - kTitleGap - kFolderTitleHeight;
  auto label = make_view<UILabel>({0, top, home_.grid().screen.width, kFolderTitleHeight});
  label->setText(title);
  label->setFont(UIFont::fontWithName("HelveticaNeue-Light"_ns, kFolderTitleSize));
  label->setTextColor(UIColor::whiteColor());
  label->setTextAlignment(NSTextAlignmentCenter);
  overlay_->addSubview(*label);
}

CGAffineTransform FolderPresenter::transform_onto_icon() const {
  const CGFloat scale = icon_frame_.size.width / metrics_.panel.size.width;
  const CGPoint from = metrics_.panel.centre();
  const CGPoint to = icon_frame_.centre();
  return {scale, 0, 0, scale, to.x - from.x, to.y - from.y};
}

void FolderPresenter::take_down() {
  if (!overlay_) return;
  // The icons inside stay in their list whether it is on the screen or not.
  list_->removeFromSuperview();
  overlay_->removeFromSuperview();
  list_.reset();
  panel_.reset();
  overlay_.reset();
  closing_ = false;
}

}  // namespace host::springboard
