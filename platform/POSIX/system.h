#pragma once

/// Runs a shell command and waits for it. Returns its status as `wait` does, or -1 if no process
/// could be created.
extern "C" int system(const char* command);
