#pragma once

#include "host/activator/registry/listener_record.h"
#include "platform/UIKit/UIView.h"

namespace host::activator {

/// The top of a listener's page: its icon, its title and its description on any number of lines.
UIView make_listener_heading(const ListenerRecord& record, CGFloat width);

}  // namespace host::activator
