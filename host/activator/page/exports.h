#pragma once

namespace host::activator {

/// Makes the classes of the gesture service; views and tables must have been made. A second call
/// does nothing.
void export_activator();

}  // namespace host::activator
