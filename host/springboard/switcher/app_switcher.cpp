#include "host/springboard/switcher/app_switcher.h"

#include "host/springboard/application/application_controller.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/icon/icon_image.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/switcher/screen_picture.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

constexpr double kZoom = 0.4;
constexpr double kSwitcherFading = 0.15;
constexpr NSUInteger kIconsOnHomeCard = 9;
// Represents the home screen among the bundle identifiers.
const std::string kHome;

UIImage icon_of(SBApplication application) {
  const SBIcon icon = SBIconController::sharedInstance().model().expectedIconForDisplayIdentifier(
      application.bundleIdentifier());
  const UIImage image = icon.generateIconImage(SBIconImageFormatHomeScreen);
  return image ? image : initial_image(application.displayName());
}

/// The icon of the home screen's card: a folder with the first of its applications.
UIImage home_icon() {
  const auto images = NSMutableArray::array();
  for (const SBApplication each :
       SBApplicationController::sharedInstance().allApplications().of<SBApplication>()) {
    if (images.count() < kIconsOnHomeCard) images.addObject(icon_of(each));
  }
  return folder_image(images);
}

}  // namespace

AppSwitcher::~AppSwitcher() {
  dismiss_at_once();
}

void AppSwitcher::show() {
  if (showing_) return;
  dismiss_at_once();
  showing_ = true;
  ++shows_;
  build();
  window_->setHidden(NO);
  const std::string& front = recent_applications().front();
  row_->show_card(front);
  row_->zoom_onto(front);
  UIView::animateWithDuration(kZoom, 0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([this] { row_->zoom_out(); }), objc::Block<void(BOOL)>());
}

void AppSwitcher::build() {
  RecentApplications& recent = recent_applications();
  if (!recent.front().empty()) recent.keep_picture(recent.front(), picture_of_front());
  window_ = make_surface_window(kSwitcherLevel);
  add_blurred_wallpaper(*window_);
  row_ = std::make_unique<SwitcherRow>(*window_, self);
  add_home_card();
  for (const std::string& bundle : recent.all())
    add_card(installed_application(bundle));
  actions_ = std::make_unique<SurfaceActions>();
  actions_->on_tap(row_->view(), [this] { dismiss(); });
}

void AppSwitcher::add_home_card() {
  row_->add({kHome, "Home"_ns, home_icon(), picture_of_home()}, callbacks_for(kHome));
}

void AppSwitcher::add_card(SBApplication application) {
  if (!application) return;
  const std::string bundle = to_string(application.bundleIdentifier());
  row_->add({bundle, application.displayName(), icon_of(application),
             recent_applications().picture(bundle)},
            callbacks_for(bundle));
}

SwitcherCard::Callbacks AppSwitcher::callbacks_for(const std::string& bundle) {
  return {[this, bundle] { choose(bundle); }, [this, bundle] { throw_away(bundle); }};
}

void AppSwitcher::choose(const std::string& bundle) {
  if (!showing_) return;
  if (bundle != recent_applications().front()) {
    // The home screen appears below while its card grows over it.
    if (bundle.empty()) {
      recent_applications().leave();
    } else {
      SBUIController::sharedInstance().activateApplicationAnimated(installed_application(bundle));
    }
  }
  leave_onto(bundle);
}

void AppSwitcher::throw_away(const std::string& bundle) {
  if (!showing_) return;
  if (bundle == recent_applications().front()) recent_applications().leave();
  row_->throw_away(bundle);
  recent_applications().close(bundle);
}

void AppSwitcher::dismiss() {
  if (showing_) leave_onto(recent_applications().front());
}

void AppSwitcher::leave_onto(const std::string& bundle) {
  showing_ = false;
  row_->view().setUserInteractionEnabled(NO);
  const auto grown = objc::block([this, show = shows_, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && show == shows_ && row_) fade();
  });
  UIView::animateWithDuration(kZoom, objc::block([this, bundle] { row_->zoom_onto(bundle); }),
                              grown);
}

void AppSwitcher::fade() {
  const auto faded = objc::block([this, show = shows_, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && show == shows_) dismiss_at_once();
  });
  UIView::animateWithDuration(kSwitcherFading, objc::block([this] { window_->setAlpha(0); }),
                              faded);
}

void AppSwitcher::dismiss_at_once() {
  showing_ = false;
  actions_.reset();
  row_.reset();
  if (window_) window_->setHidden(YES);
  window_.reset();
}

void AppSwitcher::will_end_dragging(UIScrollView, CGPoint, CGPoint* target) {
  if (row_) target->x = row_->stop_near(target->x);
}

AppSwitcher& app_switcher() {
  return objc::state_of<AppSwitcher>(SharedInstance<SBAppSwitcherController>::get());
}

void export_app_switcher() {
  objc::ClassBuilder("SBAppSwitcherController", "NSObject")
      .state<AppSwitcher>()
      .method<&AppSwitcher::will_end_dragging>(
          "scrollViewWillEndDragging:withVelocity:targetContentOffset:")
      .finish();
}

}  // namespace host::springboard
