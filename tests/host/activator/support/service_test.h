#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/activator/event/strings.h"
#include "host/activator/page/exports.h"
#include "host/activator/service/service.h"
#include "host/foundation/device_paths.h"
#include "host/uikit/scroll/exports.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/support/media_fixtures.h"

namespace host::test {

using activator::Mode;
using activator::Service;
using activator::to_ns;
using activator::to_string;

/// What a test's listener does when it receives an event or is queried.
struct ListenerScript {
  std::function<void(LAEvent)> on_event;
  std::function<objc::Object(const std::string& question)> on_question;
  std::vector<std::string> events;
  int living = 0;
};
ListenerScript& script();

/// Owned by the caller (+1): an instance of a class that receives events only, of one that also
/// answers every question by the script, or of one that is not a listener at all.
LAListener plain_listener();
LAListener answering_listener();
LAListener deaf_listener();

void raise_exception();

class FixedMode final : public activator::ModeProvider {
 public:
  Mode present_mode() const override { return mode; }
  Mode mode = Mode::SpringBoard;
};

/// The service of a home screen on the test's own device.
class ActivatorTest : public UIKitTest {
 protected:
  ActivatorTest() {
    foundation::set_device_root(device.path());
    uikit::export_scroll();
    activator::export_activator();
    script() = {};
    start_again();
  }
  ~ActivatorTest() override {
    Service::restart(Service::Role::Guest, nullptr);
    foundation::set_device_root("");
  }

  void start_again(Service::Role role = Service::Role::HomeScreen) {
    Service::restart(role, &mode);
  }
  LAActivator service() const { return LAActivator::sharedInstance(); }
  /// Registers a listener and transfers its ownership to the service.
  void add(LAListener listener, const char* name) const {
    service().registerListener(listener, to_ns(name));
    listener.release();
  }
  LAEvent event(const char* name, const char* in_mode = "springboard") const {
    return LAEvent::eventWithName(to_ns(name), to_ns(in_mode));
  }
  BOOL assign(const char* name, const char* listener, const char* in_mode = "springboard") const {
    return service().assignEvent(event(name, in_mode), to_ns(listener));
  }
  void send(const char* name, const char* in_mode = "springboard") const {
    service().sendEventToListener(event(name, in_mode));
  }
  std::string assignments_file() const { return device.path() + activator::kAssignmentsPath; }

  media_tests::TemporaryFolder device;
  FixedMode mode;
};

}  // namespace host::test
