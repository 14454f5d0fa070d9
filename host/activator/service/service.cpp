#include "host/activator/service/service.h"

#include <utility>

#include "host/activator/event/event_kinds.h"
#include "host/activator/event/strings.h"
#include "host/activator/registry/careful_call.h"
#include "host/activator/registry/listener_questions.h"
#include "host/runtime/run_loop.h"

namespace host::activator {
namespace {

// Never destroyed at exit: listeners must not be released after the runtime has shut down.
Service* present = nullptr;

void report_hang(const std::string& name) {
  spdlog::error("gesture listener {} hangs: it has not returned from its event for {} s", name,
                Service::kLongestCall.count() / 1000);
}

}  // namespace

Service& Service::shared() {
  if (!present) present = new Service(Role::Guest, nullptr);
  return *present;
}

void Service::restart(Role role, const ModeProvider* modes) {
  delete std::exchange(present, new Service(role, modes));
}

Service::Service(Role role, const ModeProvider* modes)
    : role_(role), modes_(modes), watch_(kLongestCall, &report_hang) {
  // Other processes must not keep seeing the listeners of an earlier process.
  write_directory_later();
}

void Service::add(LAListener listener, const std::string& name) {
  if (!listener || name.empty()) return;
  listeners_[name] = objc::Ref<LAListener>::retain(listener);
  write_directory_later();
}

void Service::remove(const std::string& name) {
  if (listeners_.erase(name) > 0) write_directory_later();
}

LAListener Service::listener(const std::string& name) const {
  const auto found = listeners_.find(name);
  return found == listeners_.end() ? LAListener() : found->second.get();
}

std::vector<std::string> Service::listener_names() const {
  std::vector<std::string> names;
  for (const auto& [name, listener] : listeners_)
    names.push_back(name);
  return names;
}

Mode Service::present_mode() const {
  return modes_ ? modes_->present_mode() : Mode::SpringBoard;
}

ListenerRecord Service::record(const std::string& name) {
  const auto found = listeners_.find(name);
  if (found == listeners_.end()) return directory_.find(name);
  const auto kept = found->second;
  return describe(LAActivator::sharedInstance(), kept.get(), name);
}

bool Service::assign(const std::string& event, const std::string& mode,
                     const std::string& listener) {
  if (!event_named(event) || !mode_named(mode) || listener.empty()) return false;
  if (!record(listener).admits(mode)) return false;
  return assignments_.assign(event, mode, listener);
}

bool Service::has_listener(const std::string& event) {
  for (const std::string& name : assignments_.current().listeners(event, name_of(present_mode()))) {
    if (listeners_.contains(name)) return true;
  }
  return false;
}

void Service::send(LAEvent event) {
  // A copy: a listener may change the assignments.
  const auto names =
      assignments_.current().listeners(to_string(event.name()), to_string(event.mode()));
  for (const std::string& name : names)
    deliver(name, event);
}

void Service::deliver(const std::string& name, LAEvent event) {
  // The listener may unregister itself during the call.
  const auto listener = objc::Ref<LAListener>::retain(this->listener(name));
  watch_.during(name, [&] {
    call_catching(name, "given an event", [&] {
      if (listener->respondsToSelector("activator:receiveEvent:"_sel))
        listener->receiveEvent(LAActivator::sharedInstance(), event);
    });
  });
}

bool Service::recognized(const std::string& event) {
  if (!has_listener(event)) return false;
  // A listener may change the windows whose touch is being delivered.
  const Mode mode = present_mode();
  RunLoop::main().perform([this, event, mode, life = std::weak_ptr(life_)] {
    if (!life.expired()) send(LAEvent::eventWithName(to_ns(event), to_ns(name_of(mode))));
  });
  return true;
}

// In the next turn, since listeners may register during their construction, and several at once.
void Service::write_directory_later() {
  if (role_ != Role::HomeScreen || std::exchange(will_write_directory_, true)) return;
  RunLoop::main().perform([this, life = std::weak_ptr(life_)] {
    if (!life.expired()) write_directory();
  });
}

void Service::write_directory() {
  will_write_directory_ = false;
  std::vector<ListenerRecord> records;
  // A copy: a listener may register another when it is queried.
  const auto listeners = listeners_;
  // Without listeners, the service's library, and with it the class, may not be loaded.
  const LAActivator activator = listeners.empty() ? nil : LAActivator::sharedInstance();
  for (const auto& [name, listener] : listeners) {
    records.push_back(describe(activator, listener.get(), name));
    records.back().icon = directory_.keep_icon(name, icon_of(activator, listener.get(), name));
  }
  directory_.write(records);
}

}  // namespace host::activator
