#pragma once

#include <string>

namespace host::foundation {

// A signal that ends this process is one line on standard error, which names the library whose code
// was running if that is known. Afterwards the signal takes its course.

/// Begins reporting crashes under this name of the process.
void report_crashes(const char* process_name);

/// Call these around each load; `handle` is nullptr if the load failed.
void crash_report_begins_load(const std::string& library);
void crash_report_ends_load(const std::string& library, void* handle);

}  // namespace host::foundation
