#include "host/uikit/application/application.h"

#include <vector>

#include "host/runtime/device_model.h"
#include "host/uikit/application/address_opener.h"
#include "host/uikit/geometry/window_list.h"
#include "host/uikit/touch/event.h"
#include "host/uikit/view/action.h"
#include "objc/autorelease_pool.h"

namespace host::uikit {
namespace {

constexpr CGFloat kStatusBarHeight = 20;

UIApplication shared_application;
AddressOpener address_opener;

std::string text_of(NSURL url) {
  const char* text = url.absoluteString().UTF8String();
  return text ? text : "";
}

}  // namespace

void set_address_opener(AddressOpener opener) {
  address_opener = opener;
}

Application::~Application() {
  if (shared_application == self) shared_application = nil;
}

UIApplication Application::shared(objc::Object) {
  return shared_application;
}

UIApplication Application::init() {
  if (!super<UIApplication>("init"_sel)) return nil;
  if (!shared_application) shared_application = self;
  return self;
}

UIResponder Application::next_responder() {
  const auto delegate = objc::cast<NSObject>(delegate_);
  if (delegate_ == self || !delegate.isKindOfClass(UIResponder::cls())) return nil;
  return objc::cast<UIResponder>(delegate_);
}

UIWindow Application::key_window() const {
  return uikit::key_window();
}

NSArray Application::windows() const {
  const auto windows = visible_windows();
  const std::vector<objc::Object> objects(windows.begin(), windows.end());
  return NSArray::arrayWithObjects(objects.data(), objects.size());
}

void Application::send_event(UIEvent event) {
  objc::state_of<Event>(event).changed_touch().window().sendEvent(event);
}

BOOL Application::send_action(objc::Sel action, objc::Object target, objc::Object sender,
                              UIEvent event) {
  return uikit::send_action(action, target, sender, event) ? YES : NO;
}

BOOL Application::can_open(NSURL url) {
  return url && address_opener.can_open && address_opener.can_open(text_of(url)) ? YES : NO;
}

BOOL Application::open(NSURL url) {
  return url && address_opener.open && address_opener.open(text_of(url)) ? YES : NO;
}

CGFloat Application::status_bar_height() const {
  return status_bar_hidden_ ? 0 : kStatusBarHeight;
}

CGRect Application::status_bar_frame() const {
  return {0, 0, current_device().width, self.statusBarHeight()};
}

UIApplication launch_application(const char* class_name) {
  // The launch has its own pool: objects autoreleased on the way do not live as long as the
  // process.
  const objc::AutoreleasePool pool;
  const objc::Object cls(objc_getClass(class_name));
  const auto allocated = objc::send<UIApplication>(cls, "alloc"_sel);
  const auto application = objc::send<UIApplication>(allocated, "init"_sel);
  objc::send<>(application, "applicationDidFinishLaunching:"_sel, application);
  return application;
}

void export_application_class() {
  objc::ClassBuilder("UIApplication", "UIResponder")
      .state<Application>()
      .class_method<&Application::shared>("sharedApplication")
      .method<&Application::init>("init")
      .method<&Application::next_responder>("nextResponder")
      .method<&Application::delegate>("delegate")
      .method<&Application::set_delegate>("setDelegate:")
      .method<&Application::did_finish_launching>("applicationDidFinishLaunching:")
      .method<&Application::key_window>("keyWindow")
      .method<&Application::windows>("windows")
      .method<&Application::send_event>("sendEvent:")
      .method<&Application::send_action>("sendAction:to:from:forEvent:")
      .method<&Application::can_open>("canOpenURL:")
      .method<&Application::open>("openURL:")
      .method<&Application::is_ignoring_interaction_events>("isIgnoringInteractionEvents")
      .method<&Application::begin_ignoring_interaction_events>("beginIgnoringInteractionEvents")
      .method<&Application::end_ignoring_interaction_events>("endIgnoringInteractionEvents")
      .method<&Application::is_status_bar_hidden>("isStatusBarHidden")
      .method<&Application::set_status_bar_hidden>("setStatusBarHidden:")
      .method<&Application::status_bar_height>("statusBarHeight")
      .method<&Application::status_bar_frame>("statusBarFrame")
      .method<&Application::status_bar_orientation>("statusBarOrientation")
      .finish();
}

}  // namespace host::uikit
