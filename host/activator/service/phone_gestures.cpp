#include "host/activator/service/phone_gestures.h"

#include "host/activator/event/event_kinds.h"
#include "host/activator/event/strings.h"
#include "host/activator/service/service.h"

namespace host::activator {
namespace {

bool recognized(const char* event) {
  return Service::shared().recognized(event);
}

}  // namespace

PhoneGestures::PhoneGestures(RunLoop& loop, CGSize screen)
    : touches_(loop, screen, &recognized), buttons_(loop, &recognized) {
  uikit::add_system_gestures(&touches_);
}

PhoneGestures::~PhoneGestures() {
  uikit::remove_system_gestures(&touches_);
}

bool PhoneGestures::press_key(std::string_view name) {
  return name == kChord && recognized(kKeyboardChord);
}

void PhoneGestures::shake() {
  recognized(kShake);
}

bool perform_event(std::string_view name) {
  const EventKind* kind = event_named(name);
  if (!kind) return false;
  Service& service = Service::shared();
  if (service.has_listener(kind->name))
    service.send(LAEvent::eventWithName(to_ns(kind->name), to_ns(name_of(service.present_mode()))));
  return true;
}

}  // namespace host::activator
