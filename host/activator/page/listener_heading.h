#pragma once

#include "host/activator/registry/listener_record.h"
#include "platform/UIKit/UIView.h"

namespace host::activator {

/// The top of a listener's page: its icon, its title and what it does, on as many lines as that
/// takes.
UIView make_listener_heading(const ListenerRecord& record, CGFloat width);

}  // namespace host::activator
