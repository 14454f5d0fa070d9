#pragma once

/// Runs a command of the shell and waits for it. Its status as `wait` gives it; -1 when no process
/// could be made.
extern "C" int system(const char* command);
