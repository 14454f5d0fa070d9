#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace host::foundation {

/// Notifications between the processes of the device: a name and nothing else. Those with the same
/// name that follow one another quickly may arrive as one.

/// Tells every process that observes the name, also this one.
void post_to_processes(std::string_view name);

/// Calls `work` from the main run loop when the name is posted. The owner is any address, by which
/// the observation is ended.
void observe_processes(const void* owner, std::string name, std::function<void()> work);

/// Ends the owner's observation of a name; of all names if it is empty.
void stop_observing_processes(const void* owner, std::string_view name);

}  // namespace host::foundation
