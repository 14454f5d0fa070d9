#pragma once

#include "platform/Foundation/NSString.h"

namespace host::springboard {

// What the surfaces ask of each other.

bool is_locked();
bool is_notification_centre_open();
void open_notification_centre();
/// The Home button closes the surface that lies on top; false when there is none.
bool close_top_surface();
/// Everything that has to be gone before the phone locks.
void close_surfaces_at_once();

}  // namespace host::springboard
