#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/activator/assignment/assignment_store.h"
#include "host/activator/event/hang_watch.h"
#include "host/activator/event/mode.h"
#include "host/activator/registry/listener_directory.h"
#include "objc/ref.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Activator/LAListener.h"

namespace host::activator {

/// Behind the shared object: who is registered, what is assigned to whom, and what happens when an
/// event does. There is one a process.
class Service {
 public:
  static constexpr std::chrono::milliseconds kLongestCall{1000};

  /// Does the service tell other processes who is registered? The home screen's does.
  enum class Role { HomeScreen, Guest };

  static Service& shared();
  /// Forgets everybody, and begins anew as another process would.
  static void restart(Role role, const ModeProvider* modes);

  Service(Role role, const ModeProvider* modes);

  /// A second one of the same name takes the place of the first. Nil is nobody.
  void add(LAListener listener, const std::string& name);
  void remove(const std::string& name);
  LAListener listener(const std::string& name) const;
  std::vector<std::string> listener_names() const;

  Mode present_mode() const;
  AssignmentStore& assignments() { return assignments_; }
  const ListenerDirectory& directory() const { return directory_; }
  /// What the registered listener says of itself, or, of one that is not, what was last said.
  ListenerRecord record(const std::string& name);
  /// False for an unknown event or mode, for a mode that is not the listener's, and when it cannot
  /// be kept.
  bool assign(const std::string& event, const std::string& mode, const std::string& listener);

  /// Would anybody hear of the event now?
  bool is_heard(const std::string& event);
  /// Tells all listeners that the event is assigned to, in the order of the assignments.
  void send(LAEvent event);
  /// Sends the event in the present mode with the loop's next turn; false, and nothing, when
  /// nobody hears it.
  bool recognized(const std::string& event);

 private:
  void tell(const std::string& name, LAEvent event);
  void tell_others_later();
  void tell_others();

  const Role role_;
  const ModeProvider* modes_;
  std::map<std::string, objc::Ref<LAListener>> listeners_;
  AssignmentStore assignments_;
  ListenerDirectory directory_;
  HangWatch watch_;
  bool will_tell_others_ = false;
  /// Ends with the service: work for the loop's next turn may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::activator
