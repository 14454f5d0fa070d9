// A label over the home screen, a hook, a gesture listener and a page in Settings.

#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Preferences/PSListController.h"
#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

extern "C" void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                objc::Imp* original);

namespace {

struct HelloListener : objc::Bound<HelloListener, "HelloListener", NSObject> {};

UILabel label;
objc::Imp launched_before = nullptr;

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
}

// The listener: the gesture that is assigned to it in Settings greets in another language.
void receive_event(HelloListener, LAActivator, LAEvent event) {
  label.setText("Buongiorno"_ns);
  event.setHandled(YES);
}

// The page in Settings.
NSArray specifiers(PSListController page) {
  if (const NSArray made = page.cached_specifiers()) return made;
  const auto row = PSSpecifier::preferenceSpecifierNamed(
      "The home screen says hello"_ns, page, nullptr, nullptr, nullptr,
      PSTableCell::cellTypeFromString("PSStaticTextCell"_ns), nullptr);
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
