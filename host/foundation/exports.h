#pragma once

namespace host::foundation {

/// Gives Foundation what the platform's has beyond GNUstep Base: timers on our clock, the device's
/// file paths, property lists written as XML, searches in strings that never throw, addresses
/// without a path, bundles of the device. Calling it
/// twice is harmless.
void export_foundation();

void export_device_paths();
void export_timers();
void export_property_lists();
void export_property_list_reader();
void export_string_search();
void export_addresses();
void export_bundles();

}  // namespace host::foundation
