#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/activator/assignment/assignment_store.h"
#include "host/activator/event/mode.h"
#include "host/activator/registry/listener_directory.h"
#include "host/runtime/hang_watch.h"
#include "objc/ref.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Activator/LAListener.h"

namespace host::activator {

/// The implementation behind the shared object: the registered listeners, their assignments, and
/// the delivery of events. Each process has one.
class Service {
 public:
  static constexpr std::chrono::milliseconds kLongestCall{1000};

  /// Whether the service publishes its listeners to other processes. The home screen's does.
  enum class Role { HomeScreen, Guest };

  static Service& shared();
  /// Forgets all listeners and starts again as a new process would.
  static void restart(Role role, const ModeProvider* modes);

  Service(Role role, const ModeProvider* modes);

  /// A second listener of the same name replaces the first. Nil is ignored.
  void add(LAListener listener, const std::string& name);
  void remove(const std::string& name);
  LAListener listener(const std::string& name) const;
  std::vector<std::string> listener_names() const;

  Mode present_mode() const;
  AssignmentStore& assignments() { return assignments_; }
  const ListenerDirectory& directory() const { return directory_; }
  /// Queries the listener if it is registered, or else returns its last known record.
  ListenerRecord record(const std::string& name);
  /// Returns false for an unknown event or mode, for a mode that the listener does not support, and
  /// when the assignment cannot be stored.
  bool assign(const std::string& event, const std::string& mode, const std::string& listener);

  /// Returns whether any listener would receive the event now.
  bool has_listener(const std::string& event);
  /// Calls all listeners that the event is assigned to, in the order of the assignments.
  void send(LAEvent event);
  /// Sends the event for the current mode in the loop's next turn. Returns false, and does nothing,
  /// when no listener would receive it.
  bool recognized(const std::string& event);

 private:
  void deliver(const std::string& name, LAEvent event);
  void write_directory_later();
  void write_directory();

  const Role role_;
  const ModeProvider* modes_;
  std::map<std::string, objc::Ref<LAListener>> listeners_;
  AssignmentStore assignments_;
  ListenerDirectory directory_;
  HangWatch watch_;
  bool will_write_directory_ = false;
  /// Released with the service, which work queued for the loop's next turn may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::activator
