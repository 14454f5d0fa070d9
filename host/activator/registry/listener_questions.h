#pragma once

#include <string>

#include "host/activator/registry/listener_record.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Activator/LAListener.h"

namespace host::activator {

/// Queries a listener about itself, except for its icon. The listener may answer only some
/// questions or none, return objects of the wrong class, or throw.
ListenerRecord describe(LAActivator activator, LAListener listener, const std::string& name);

/// The listener's small icon, or else its large one; nil when it has neither.
UIImage icon_of(LAActivator activator, LAListener listener, const std::string& name);

}  // namespace host::activator
