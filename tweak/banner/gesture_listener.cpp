#include "tweak/banner/gesture_listener.h"

#include "objc/autorelease_pool.h"
#include "platform/Activator/LAActivator.h"
#include "tweak/Sonavue2.h"

namespace sonavue {
namespace {

// The event is not marked as handled: other listeners may use the same gesture.
void receive_event(SVActivatorListener, LAActivator, LAEvent) {
  objc::AutoreleasePool pool;
  objc::send<>(Spring, "showBanner"_sel);
}

// The same picture for every size and scale.
UIImage icon(SVActivatorListener, LAActivator, NSString, CGFloat) {
  return UIImage::imageWithContentsOfFile(
      "/Library/PreferenceBundles/SonavueSettings.bundle/SonavueSettingsIcon@2x.png"_ns);
}

NSString group(SVActivatorListener, LAActivator, NSString) {
  return nil;
}
NSString title_text(SVActivatorListener, LAActivator, NSString) {
  return "Sonavue"_ns;
}
NSString description_text(SVActivatorListener, LAActivator, NSString) {
  return "Present/Dimiss Sonavue"_ns;
}
NSArray compatible_modes(SVActivatorListener, LAActivator, NSString) {
  return NSArray::arrayWithObjects("springboard"_ns, "lockscreen"_ns, "application"_ns);
}

}  // namespace

void make_gesture_listener() {
  objc::make_own_class<SVActivatorListener>([](objc::ClassBuilder& builder) {
    builder.method<&receive_event>("activator:receiveEvent:")
        .method<&icon>("activator:requiresIconForListenerName:scale:")
        .method<&icon>("activator:requiresSmallIconForListenerName:scale:")
        .method<&group>("activator:requiresLocalizedGroupForListenerName:")
        .method<&title_text>("activator:requiresLocalizedTitleForListenerName:")
        .method<&description_text>("activator:requiresLocalizedDescriptionForListenerName:")
        .method<&compatible_modes>("activator:requiresCompatibleEventModesForListenerWithName:");
  });
}

void register_gesture_listener() {
  const auto listener = SVActivatorListener::alloc().init();
  if (!listener) return;
  const auto service = LAActivator::sharedInstance();
  // The protocol exists only once the service's library is loaded.
  if (const objc::Protocol protocol = objc_getProtocol("LAListener"))
    class_addProtocol(SVActivatorListener::cls(), protocol);
  service.registerListener(listener, "org.plumvane.Sonavue2"_ns);
}

}  // namespace sonavue
