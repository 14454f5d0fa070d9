#pragma once

namespace host::foundation {

/// Adds to Foundation what the platform's has beyond GNUstep Base: timers on our clock, the
/// device's file paths, property lists written as XML, string searches that never throw, addresses
/// without a path, and bundles of the device. Idempotent.
void export_foundation();

void export_device_paths();
void export_timers();
void export_property_lists();
void export_property_list_reader();
void export_string_search();
void export_addresses();
void export_bundles();

}  // namespace host::foundation
