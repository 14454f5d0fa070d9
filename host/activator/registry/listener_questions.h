#pragma once

#include <string>

#include "host/activator/registry/listener_record.h"
#include "platform/Activator/LAActivator.h"
#include "platform/Activator/LAListener.h"

namespace host::activator {

/// Asks a listener about itself. It may answer some of the questions, none, with something of
/// another kind, or throw. The icon is left out.
ListenerRecord describe(LAActivator activator, LAListener listener, const std::string& name);

/// The listener's small icon, or else its large one; nil when it has none.
UIImage icon_of(LAActivator activator, LAListener listener, const std::string& name);

}  // namespace host::activator
