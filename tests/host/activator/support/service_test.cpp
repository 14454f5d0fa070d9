#include "tests/host/activator/support/service_test.h"

#include "objc/class_builder.h"

namespace host::test {
namespace {

template <class Derived>
struct Living : objc::Implementation<Derived, LAListener> {
  explicit Living(LAListener owner) : objc::Implementation<Derived, LAListener>(owner) {
    ++script().living;
  }
  ~Living() { --script().living; }
};

struct Plain : Living<Plain> {
  using Living::Living;
};

void receive(LAListener, LAActivator, LAEvent event) {
  script().events.push_back(to_string(event.name()) + " " + to_string(event.mode()));
  if (script().on_event) script().on_event(event);
}

objc::Object ask(const char* question) {
  return script().on_question ? script().on_question(question) : objc::Object();
}

UIImage icon(LAListener, LAActivator, NSString, CGFloat) {
  return objc::cast<UIImage>(ask("icon"));
}
UIImage small_icon(LAListener, LAActivator, NSString, CGFloat) {
  return objc::cast<UIImage>(ask("small icon"));
}
NSString group(LAListener, LAActivator, NSString) {
  return objc::cast<NSString>(ask("group"));
}
NSString title(LAListener, LAActivator, NSString) {
  return objc::cast<NSString>(ask("title"));
}
NSString description(LAListener, LAActivator, NSString) {
  return objc::cast<NSString>(ask("description"));
}
NSArray modes(LAListener, LAActivator, NSString) {
  return objc::cast<NSArray>(ask("modes"));
}

void make_classes() {
  if (objc_getClass("PlainListener")) return;
  objc::ClassBuilder("DeafListener", "NSObject").finish();
  objc::ClassBuilder("PlainListener", "NSObject")
      .state<Plain>()
      .method<&receive>("activator:receiveEvent:")
      .finish();
  objc::ClassBuilder("AnsweringListener", "PlainListener")
      .method<&icon>("activator:requiresIconForListenerName:scale:")
      .method<&small_icon>("activator:requiresSmallIconForListenerName:scale:")
      .method<&group>("activator:requiresLocalizedGroupForListenerName:")
      .method<&title>("activator:requiresLocalizedTitleForListenerName:")
      .method<&description>("activator:requiresLocalizedDescriptionForListenerName:")
      .method<&modes>("activator:requiresCompatibleEventModesForListenerWithName:")
      .finish();
}

LAListener made(const char* name) {
  make_classes();
  const objc::Object cls(objc_getClass(name));
  return objc::send<LAListener>(objc::send<LAListener>(cls, "alloc"_sel), "init"_sel);
}

}  // namespace

ListenerScript& script() {
  static ListenerScript present;
  return present;
}

LAListener plain_listener() {
  return made("PlainListener");
}
LAListener answering_listener() {
  return made("AnsweringListener");
}
LAListener deaf_listener() {
  return made("DeafListener");
}

void raise_exception() {
  const auto exception = objc::send<objc::Object>(
      objc::Object(objc_getClass("NSException")), "exceptionWithName:reason:userInfo:"_sel,
      "TestException"_ns, "a listener that throws"_ns, objc::Object());
  objc::send<>(exception, "raise"_sel);
}

}  // namespace host::test
