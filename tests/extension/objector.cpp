// An extension that is loaded before the others. It makes a method of the system, below their
// replacements, raise an exception on request. It also calls that method and catches the exception
// above their replacements.

#include "objc/hook.h"
#include "platform/Foundation/NSString.h"
#include "platform/SpringBoard/SBReachabilityManager.h"

namespace {

struct Objection {
  int number;
};

enum class Way { kNone, kException, kThrow };

Way way = Way::kNone;
objc::Imp time_changed_before = nullptr;

void raise_exception() {
  const auto exception = objc::send<objc::Object>(
      objc::Object(objc_getClass("NSException")), "exceptionWithName:reason:userInfo:"_sel,
      "Objection"_ns, "the time does not change"_ns, objc::Object());
  objc::send<>(exception, "raise"_sel);
}

void time_changed(objc::Id self, objc::Sel selector) {
  if (way == Way::kException) raise_exception();
  if (way == Way::kThrow) throw Objection{42};
  using Body = void (*)(objc::Id, objc::Sel);
  reinterpret_cast<Body>(time_changed_before)(self, selector);
}

NSString arrival(Way chosen) {
  way = chosen;
  try {
    SBReachabilityManager::sharedInstance()._handleSignificantTimeChanged();
    return "nothing"_ns;
  } catch (const Objection& objection) {
    return objection.number == 42 ? "the object"_ns : "another object"_ns;
  } catch (...) {
    // The platform's exceptions are not C++ objects.
    return "the exception"_ns;
  }
}

NSString arrival_of_nothing(objc::Object) {
  return arrival(Way::kNone);
}

NSString arrival_of_exception(objc::Object) {
  return arrival(Way::kException);
}

NSString arrival_of_object(objc::Object) {
  return arrival(Way::kThrow);
}

[[gnu::constructor]] void load() {
  MSHookMessageEx(SBReachabilityManager::cls(), "_handleSignificantTimeChanged"_sel,
                  reinterpret_cast<objc::Imp>(&time_changed), &time_changed_before);
  objc::ClassBuilder("Objector", "NSObject")
      .class_method<&arrival_of_nothing>("raiseNothing")
      .class_method<&arrival_of_exception>("raiseException")
      .class_method<&arrival_of_object>("throwObject")
      .finish();
}

}  // namespace
