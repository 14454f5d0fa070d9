// A label over the home screen, a hook, a gesture listener, and what a switch in Settings does.

#include "objc/exported_global.h"
#include "objc/hook.h"
#include "platform/Activator/LAActivator.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/NSValue.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

namespace {

struct HelloListener : objc::Bound<HelloListener, "HelloListener", NSObject> {};

UILabel label;

// Called at the start and whenever the switch in Settings changes.
void show_or_hide() {
  const auto settings = NSDictionary::dictionaryWithContentsOfFile(
      "/var/mobile/Library/Preferences/com.example.hello.plist"_ns);
  label.setHidden(objc::cast<NSNumber>(settings.objectForKey("hidden"_ns)).boolValue());
}

// The listener: the gesture that is assigned to it in Settings greets in another language.
void receive_event(HelloListener, LAActivator, LAEvent event) {
  label.setText("Buongiorno"_ns);
  event.setHandled(YES);
}

// The hook: the home screen launches as always, then gets a label of its own.
void launched(SpringBoard self, objc::Object application) {
  objc::original<&launched>(self, application);
  const CGSize screen = UIScreen::mainScreen().bounds().size;
  const CGRect place{{0, screen.height - 160}, {screen.width, 30}};
  const auto window = UIWindow::alloc().initWithFrame(place);
  label = UILabel::alloc().initWithFrame(window.bounds());
  label.setText("Hello"_ns);
  label.setTextColor(UIColor::whiteColor());
  label.setTextAlignment(NSTextAlignmentCenter);
  window.addSubview(label);
  window.setUserInteractionEnabled(NO);
  window.setHidden(NO);
  const auto listener = HelloListener::alloc().init();
  LAActivator::sharedInstance().registerListener(listener, "com.example.hello"_ns);
  observe_darwin_notification<&show_or_hide>("com.example.hello/changed"_ns);
  show_or_hide();
}

// Runs when the library is loaded.
[[gnu::constructor]] void load() {
  objc::ClassBuilder("HelloListener", "NSObject")
      .method<&receive_event>("activator:receiveEvent:")
      .finish();
  objc::hook<"SpringBoard", "applicationDidFinishLaunching:", &launched>();
}

}  // namespace

// What scripts and the console may read: `print [hello text]`.
extern "C" const objc::ExportedGlobal exported_globals[] = {{"hello", "@", &label}, {}};
