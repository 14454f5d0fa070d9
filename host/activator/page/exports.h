#pragma once

namespace host::activator {

/// Registers the classes of the gesture service, after those of views and tables. Idempotent.
void export_activator();

}  // namespace host::activator
