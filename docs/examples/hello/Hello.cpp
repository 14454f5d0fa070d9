// A label over the home screen, a hook, a gesture listener and a page in Settings.

#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Foundation/NSValue.h"
#include "platform/Preferences/PSListController.h"
#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

extern "C" void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                objc::Imp* original);
extern "C" void* CFNotificationCenterGetDarwinNotifyCenter();
extern "C" void CFNotificationCenterAddObserver(void* center, const void* observer,
                                                void (*callback)(), objc::Id name,
                                                const void* object, long behavior);

namespace {

struct HelloListener : objc::Bound<HelloListener, "HelloListener", NSObject> {};

UILabel label;
objc::Imp launched_before = nullptr;

// Called at the start and whenever the switch in Settings changes.
void show_or_hide() {
  const auto settings = NSDictionary::dictionaryWithContentsOfFile(
      "/var/mobile/Library/Preferences/com.example.hello.plist"_ns);
  const auto hidden = objc::cast<NSNumber>(settings.objectForKey("hidden"_ns));
  label.setHidden(hidden.boolValue());
}

// The hook: the home screen launches as always, then gets a label of its own.
void launched(objc::Id self, objc::Sel selector, objc::Id application) {
  using Launched = void (*)(objc::Id, objc::Sel, objc::Id);
  reinterpret_cast<Launched>(launched_before)(self, selector, application);
  const CGSize screen = UIScreen::mainScreen().bounds().size;
  const auto window =
      UIWindow::alloc().initWithFrame({{0, screen.height - 160}, {screen.width, 30}});
  label = UILabel::alloc().initWithFrame(window.bounds());
  label.setText("Hello"_ns);
  label.setTextColor(UIColor::whiteColor());
  label.setTextAlignment(NSTextAlignmentCenter);
  window.addSubview(label);
  window.setUserInteractionEnabled(NO);
  window.setHidden(NO);
  LAActivator::sharedInstance().registerListener(HelloListener::alloc().init(),
                                                 "com.example.hello"_ns);
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &label,
                                  &show_or_hide, "com.example.hello/changed"_ns.id(), nullptr, 0);
  show_or_hide();
}

// The listener: the gesture that is assigned to it in Settings greets in another language.
void receive_event(HelloListener, LAActivator, LAEvent event) {
  label.setText("Buongiorno"_ns);
  event.setHandled(YES);
}

// The page in Settings: a switch, whose value is kept in a file of preferences.
NSArray specifiers(PSListController page) {
  if (const NSArray made = page.cached_specifiers()) return made;
  const auto row = PSSpecifier::preferenceSpecifierNamed(
      "Hide the label"_ns, page, "setPreferenceValue:specifier:"_sel, "readPreferenceValue:"_sel,
      nullptr, PSTableCell::cellTypeFromString("PSSwitchCell"_ns), nullptr);
  row.setProperty("com.example.hello"_ns, "defaults"_ns);
  row.setProperty("hidden"_ns, "key"_ns);
  row.setProperty("com.example.hello/changed"_ns, "PostNotification"_ns);
  page.setSpecifiers(NSArray::arrayWithObjects(PSSpecifier::emptyGroupSpecifier(), row));
  return page.cached_specifiers();
}

// Runs when the library is loaded, into each process that its filter names.
[[gnu::constructor]] void load() {
  MSHookMessageEx(objc_getClass("SpringBoard"), "applicationDidFinishLaunching:"_sel,
                  reinterpret_cast<objc::Imp>(&launched), &launched_before);
  objc::ClassBuilder("HelloListener", "NSObject")
      .method<&receive_event>("activator:receiveEvent:")
      .finish();
  objc::ClassBuilder("HelloPage", "PSListController").method<&specifiers>("specifiers").finish();
}

}  // namespace

// What scripts and the console may read: `print [hello text]`.
struct ExportedGlobal {
  const char* name;
  const char* type;
  void* address;
};
extern "C" const ExportedGlobal exported_globals[] = {{"hello", "@", &label}, {}};
