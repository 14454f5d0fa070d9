#pragma once

#include "platform/Foundation/NSString.h"

namespace host::springboard {

// Functions through which the surfaces use each other.

bool is_locked();
bool is_notification_centre_open();
void open_notification_centre();
/// Closes the topmost surface, for the Home button. Returns false when none is open.
bool close_top_surface();
/// Closes all surfaces without animation, before the phone locks.
void close_surfaces_at_once();

}  // namespace host::springboard
